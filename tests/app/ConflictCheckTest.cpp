// SPDX-License-Identifier: MIT
#include "app/desktop/ConflictCheck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "app/desktop/LoginItem.h"
#include "foundation/TextFormat.h"
#include "tests/app/PlainStore.h"

namespace tonquil {
namespace {

class InstalledList final : public InstalledPrograms {
 public:
    [[nodiscard]] std::optional<InstalledProgram> firstInstalled(
        std::span<const std::string_view> candidates) const override {
        const auto found = std::ranges::find(candidates, installed);
        return found == candidates.end()
                   ? std::nullopt
                   : std::optional(InstalledProgram{.name = "Dusk", .icon = "dusk"});
    }

    std::string installed;
};

/// One computer, and what happens on it from start to start.
struct Computer {
    ConflictCheck::Outcome start() {
        return ConflictCheck(store, programs, alerts, [this] { ++ends; }).run("Tonquil");
    }

    PlainStore store;
    InstalledList programs;
    ScriptedAlerts alerts;
    int ends = 0;
};

TEST(ConflictCheck, StaysQuietUntilARivalIsThereAndThenWarnsOnce) {
    Computer computer;
    EXPECT_EQ(computer.start(), ConflictCheck::Outcome::NotShown);
    EXPECT_TRUE(computer.store.written.empty());
    computer.programs.installed = "redshift.desktop";
    EXPECT_EQ(computer.start(), ConflictCheck::Outcome::Continued);
    EXPECT_EQ(computer.store.saved.value("KVFluxWarned", PropertyValue()), true);
    EXPECT_EQ(computer.start(), ConflictCheck::Outcome::NotShown);
    EXPECT_EQ(computer.ends, 0);

    ASSERT_EQ(computer.alerts.shown.size(), 1U);
    const Alert& alert = computer.alerts.shown.front();
    EXPECT_EQ(alert.style, Alert::Style::Critical);
    EXPECT_EQ(alert.icon, "dusk");
    EXPECT_EQ(formattedText(alert.message, alert.messageArguments),
              "Dusk is present on this computer.");
    EXPECT_EQ(formattedText(alert.informativeText, alert.informativeArguments),
              "[Tonquil installed, might interfer Dusk.]");
    EXPECT_EQ(alert.buttons, (std::vector<std::string_view>{"Continue", "Quit"}));
}

TEST(ConflictCheck, WarnsAgainAfterThePersonQuit) {
    Computer computer;
    computer.programs.installed = "gammastep.desktop";
    computer.alerts.answer = 1;
    for (int starts = 1; starts <= 2; ++starts) {
        EXPECT_EQ(computer.start(), ConflictCheck::Outcome::Ended);
        EXPECT_EQ(computer.ends, starts);
        EXPECT_TRUE(computer.store.written.empty());
    }
}

TEST(TextFormat, PutsArgumentsInTheirPlaces) {
    const std::vector<std::string> two = {"a", "%@"};
    const std::vector<std::tuple<std::string_view, std::string>> rows = {
        {"", ""},
        {"%@ (%@)", "a (%@)"},
        {"%2$@ before %1$@", "%@ before a"},
        {"%1$@, %@, %@, %@", "a, a, %@, %@"},
        {"100 %% of %@", "100 % of a"},
        {"%3$@ %0$@ %99999999999999999999$@ %1$ %1 %d %",
         "%3$@ %0$@ %99999999999999999999$@ %1$ %1 %d %"}};
    for (const auto& [format, text] : rows) {
        SCOPED_TRACE(format);
        EXPECT_EQ(formattedText(format, two), text);
    }
}

TEST(LoginItem, IsReliableWhereProgramsAreInstalled) {
    const std::vector<std::tuple<std::string, std::string, bool>> rows = {
        {"/usr/bin/tonquil", "/home/kim", true},
        {"/usr/local/bin/tonquil", "", true},
        {"/opt/tonquil/bin/tonquil", "/home/kim", true},
        {"/home/kim/.local/bin/tonquil", "/home/kim", true},
        {"/home/kim/.local/bin/tonquil", "/home/kim/", true},
        {"/home/kim/Applications/tonquil", "/home/kim", true},
        {"/media/disk/Applications/tonquil", "/home/kim", true},
        {"/usrlocal/tonquil", "/home/kim", false},
        {"/usr/../srv/tonquil", "/home/kim", false},
        {"/home/kim/.local/bin/tonquil", "/home/lee", false},
        {"/.local/bin/tonquil", "", false},
        {"/home/kim/Downloads/tonquil", "/home/kim", false},
        {"/home/kim/tonquil/build/bin/tonquil", "/home/kim", false},
        {"/run/media/kim/stick/tonquil", "/home/kim", false},
        {"/srv/Applications", "/home/kim", false}};
    for (const auto& [program, home, isReliable] : rows) {
        SCOPED_TRACE(program);
        EXPECT_EQ(isInstalledReliably(program, home), isReliable);
    }
}

}  // namespace
}  // namespace tonquil
