// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <memory>
#include <string_view>

#include "app/preferences/PreferencesStore.h"

class QCheckBox;

namespace tonquil {

/// Keeps a checkbox and a boolean setting in sync, whichever changes.
class SettingBinding {
 public:
    /// `key` must live as long as the program; the checkbox and the store as long as the binding.
    SettingBinding(QCheckBox& checkBox, PreferencesStore& preferences, std::string_view key);
    SettingBinding(const SettingBinding&) = delete;
    SettingBinding& operator=(const SettingBinding&) = delete;
    ~SettingBinding();

 private:
    QMetaObject::Connection _connection;
    std::unique_ptr<PreferencesStore::Subscription> _subscription;
};

}  // namespace tonquil
