// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSize>

#include "app/panel/WindowSystem.h"

class QWidget;

namespace tonquil {

/// Keeps a window's current aspect ratio whenever the user resizes it.
class AspectKeeper : public QObject {
 public:
    /// Both must outlive the keeper.
    AspectKeeper(QWidget& window, WindowSystem& windowSystem);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QWidget& _window;
    WindowSystem& _windowSystem;
    QSize _proportions;
};

}  // namespace tonquil
