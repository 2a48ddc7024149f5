// SPDX-License-Identifier: MIT
#include <sys/resource.h>
#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <iterator>

#include "model/KVGammaPoint.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "tests/app/ControllerBench.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/ProcessRunner.h"
#include "tests/support/ScratchFolder.h"

namespace tonquil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr DisplayID left = ControllerBench::left;
constexpr DisplayID right = ControllerBench::right;

/// Lets no file grow beyond a few bytes, as a full disk does, for as long as it lives.
class FullDisk {
 public:
    FullDisk() {
        getrlimit(RLIMIT_FSIZE, &_former);
        const rlimit few{10, _former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &few);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &_former);
        std::signal(SIGXFSZ, _formerHandler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

 private:
    void (*_formerHandler)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit _former{};
};

class Files : public testing::Test {
 protected:
    Files() { bench.launchAndSettle(); }

    [[nodiscard]] std::filesystem::path fileWith(const std::string& bytes) {
        std::filesystem::path file = folder.path() / ("file" + std::to_string(++_count));
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }
    [[nodiscard]] std::filesystem::path fileWith(const PropertyValue& value) {
        return fileWith(writePropertyList(value).value());
    }
    void open(const std::filesystem::path& file) {
        bench.controller().openFile(file);
        bench.loop.runPosted();
    }
    [[nodiscard]] static PropertyValue read(const std::filesystem::path& file) {
        std::ifstream stream(file, std::ios::binary);
        const std::vector<char> characters(std::istreambuf_iterator<char>(stream), {});
        return readPropertyList(std::vector<std::uint8_t>(characters.begin(), characters.end()))
            .value();
    }
    /// A curve whose red black level tells it from others.
    [[nodiscard]] static PropertyValue curve(float red) {
        return TQExtendedGammaCurve(TQExtendedGammaCurve::Masters{},
                                    KVGammaPoint::gammaPointWithRed(red, 0, 0), nullptr, nullptr,
                                    KVBlendingModeBaseTable)
            .gammaCurveDictionary();
    }
    [[nodiscard]] float red(DisplayID display) {
        return bench.curve(display)->blackPoint()->redValue();
    }
    [[nodiscard]] static std::string key(DisplayID display) {
        return std::to_string(100 + display) + "-0-0";
    }

    ScratchFolder folder;
    ControllerBench bench;

 private:
    int _count = 0;
};

TEST_F(Files, OfOneDisplayGoToTheDisplayUnderThePanel) {
    for (const PropertyValue& format : {PropertyValue(), PropertyValue("1"), PropertyValue(2)}) {
        SCOPED_TRACE(format.dump());
        PropertyValue contents = curve(0.25F);
        if (!format.is_null()) {
            contents["Format"] = format;
        }
        open(fileWith(contents));
        EXPECT_EQ(red(left), 0.25F);
        EXPECT_EQ(red(right), 0);
        EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.25F);
        bench.controller().undo();
        EXPECT_EQ(red(left), 0);
    }
    EXPECT_THAT(bench.dialogs.alerts, IsEmpty());
}

TEST_F(Files, OfSeveralDisplaysGoToTheirOwnAndWaitForTheOthers) {
    const auto file = fileWith(PropertyValue{{"Format", 1},
                                             {"Screens",
                                              {{key(left), curve(0.25F)},
                                               {std::to_string(right), curve(0.5F)},
                                               {"9-9-9", curve(0.75F)},
                                               {"damaged", "text"}}}});
    open(file);
    EXPECT_EQ(red(left), 0.25F);
    EXPECT_EQ(red(right), 0.5F) << "Found by its old ID.";
    const PropertyValue stored = bench.preferences.stored["Screens"];
    EXPECT_EQ(stored["9-9-9"], curve(0.75F));
    EXPECT_FALSE(stored.contains("damaged"));
    EXPECT_THAT(bench.controller().recentFiles(), ElementsAre(file));
    EXPECT_THAT(bench.dialogs.alerts, IsEmpty());
}

TEST_F(Files, ForDisplaysThatAreNotHereSayAndAreKept) {
    bench.desk.unplug(right);
    bench.edit(PanelSlider::BlackRed, 0.125F);
    open(fileWith(
        PropertyValue{{"Format", 1}, {"Screens", {{key(right), curve(0.5F)}, {"9", curve(1)}}}}));
    EXPECT_THAT(bench.dialogs.alerts, ElementsAre("No Matching Screens"));
    EXPECT_EQ(red(left), 0.125F);
    EXPECT_EQ(red(right), 0.5F) << "It was here earlier in this run.";
    EXPECT_THAT(bench.controller().recentFiles(), IsEmpty());
    bench.desk.plug(ControllerBench::makeDisplay(right, 1000));
    bench.controller().applicationWillTerminate();
    bench.launchAndSettle();
    EXPECT_EQ(red(right), 0.5F);
}

TEST_F(Files, ThatAreNoSettingsChangeNothingAndSaySo) {
    bench.edit(PanelSlider::BlackRed, 0.25F);
    const auto fifo = folder.path() / "fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    const std::vector<std::filesystem::path> files{
        folder.path() / "missing",
        folder.path(),
        fifo,
        fileWith(std::string(767, 'x')),
        fileWith(std::string("<?xml version=\"1.0\"?><plist><dict>") + std::string(1000, ' ')),
    };
    for (const auto& file : files) {
        SCOPED_TRACE(file);
        bench.dialogs.alerts.clear();
        open(file);
        EXPECT_EQ(red(left), 0.25F);
        EXPECT_THAT(bench.dialogs.alerts, ElementsAre("The file was not opened"));
    }
}

TEST_F(Files, OfRawTablesPassOverTheDisplaysAndLeaveTheWayBack) {
    for (const std::size_t size : {768U, 1000U}) {
        SCOPED_TRACE(size);
        bench.edit(PanelSlider::BlackRed, 0.25F);
        open(fileWith(std::string(size, '\x40')));
        EXPECT_EQ(bench.panel.shown, PanelValues{});
        EXPECT_THAT(bench.dialogs.alerts, IsEmpty());
        bench.controller().undo();
        EXPECT_EQ(red(left), 0.25F);
    }
}

TEST_F(Files, AreSavedInTheChosenFormatAndReadElsewhere) {
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.dialogs.file = folder.path() / "one.tonquil";
    bench.controller().saveGamma();
    EXPECT_EQ(read(bench.dialogs.file), bench.curve(left)->gammaCurveDictionary());

    bench.dialogs.file = folder.path() / "all.tonquil-screens";
    bench.dialogs.format = SettingsFormat::MultiDisplay;
    bench.controller().saveGamma();
    EXPECT_EQ(bench.preferences.stored["SaveFormat"], 1);
    const PropertyValue all = read(bench.dialogs.file);
    EXPECT_EQ(all["Format"], 1);
    EXPECT_EQ(all["Screens"].size(), 4U) << "Each display under both of its IDs.";
    EXPECT_EQ(all["Screens"][key(left)], all["Screens"][std::to_string(left)]);

    // Another reader agrees, and what it writes in the other encoding opens here.
    const std::string binary = folder.path() / "binary";
    const auto result = run({.command = {"python3", "-c",
                                         "import plistlib, sys\n"
                                         "d = plistlib.load(open(sys.argv[1], 'rb'))\n"
                                         "assert d['Format'] == 1 and len(d['Screens']) == 4\n"
                                         "plistlib.dump(d, open(sys.argv[2], 'wb'), "
                                         "fmt=plistlib.FMT_BINARY)\n",
                                         bench.dialogs.file, binary}});
    ASSERT_TRUE(result && result->succeeded());
    bench.edit(PanelSlider::BlackRed, 0.75F);
    open(binary);
    EXPECT_EQ(red(left), 0.25F);
}

TEST_F(Files, OpenedWhileADialogIsUpAreWhatTheDialogThenSaves) {
    const auto file = fileWith(curve(0.25F));
    bench.dialogs.file = folder.path() / "saved.tonquil";
    bench.dialogs.whileUp = [&] { open(file); };
    bench.controller().saveGamma();
    EXPECT_EQ(red(left), 0.25F);
    EXPECT_EQ(read(bench.dialogs.file), bench.curve(left)->gammaCurveDictionary());
}

TEST_F(Files, ThatCannotBeSavedAreReportedWhereNothingIsThere) {
    const auto older = fileWith(std::string("older"));
    const auto readOnly = fileWith(std::string("read-only"));
    chmod(readOnly.c_str(), 0444);
    chmod(older.c_str(), 0666);
    chmod(folder.path().c_str(), 0777);
    std::filesystem::create_directory(folder.path() / "folder");
    struct Row {
        std::filesystem::path file;
        bool isDiskFull;
        bool isReported;
        std::string kept;
    };
    // What is there is still there, and nobody need be told.
    for (const Row& row :
         {Row{folder.path() / "no/such/folder", false, true, ""},
          Row{folder.path() / "folder", false, false, ""}, Row{readOnly, false, false, "read-only"},
          Row{folder.path() / "new", true, true, ""}, Row{older, true, false, "older"}}) {
        SCOPED_TRACE(row.file);
        bench.dialogs.alerts.clear();
        bench.log.clear();
        bench.dialogs.file = row.file;
        {
            const OrdinaryUser user;
            std::optional<FullDisk> disk;
            if (row.isDiskFull) {
                disk.emplace();
            }
            bench.controller().saveGamma();
        }
        EXPECT_EQ(bench.dialogs.alerts.size(), row.isReported ? 1U : 0U);
        EXPECT_THAT(bench.log, testing::Not(IsEmpty()));
        EXPECT_FALSE(std::filesystem::exists(folder.path() / "new"));
        if (!row.kept.empty()) {
            std::ifstream stream(row.file);
            EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), row.kept);
        }
    }
}

}  // namespace
}  // namespace tonquil
