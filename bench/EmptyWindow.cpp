// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(320, 470);
    window.show();
    return QApplication::exec();
}
