// SPDX-License-Identifier: MIT
#include "windows/preferences/SettingBinding.h"

#include <QCheckBox>

namespace tonquil {

SettingBinding::SettingBinding(QCheckBox& checkBox, PreferencesStore& preferences,
                               std::string_view key) {
    const auto follow = [&checkBox, &preferences, key] {
        checkBox.setChecked(preferences.boolForKey(key));
    };
    follow();
    _subscription = preferences.subscribe(follow);
    _connection =
        QObject::connect(&checkBox, &QCheckBox::clicked, &checkBox,
                         [&preferences, key](bool isOn) { preferences.setValue(key, isOn); });
}

SettingBinding::~SettingBinding() {
    QObject::disconnect(_connection);
}

}  // namespace tonquil
