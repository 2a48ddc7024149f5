// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/cli/ControlProgram.h"
#include "tests/support/RampReader.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/Succeeded.h"
#include "tests/support/XServer.h"

namespace tonquil {
namespace {

/// One clear line, exit status 1.
void expectFailure(const ProcessResult& result) {
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(result.standardOutput, "");
    EXPECT_EQ(std::ranges::count(result.standardError, '\n'), 1) << result.standardError;
    EXPECT_TRUE(result.standardError.starts_with("tonquilctl: ")) << result.standardError;
}

TEST(Failures, OfTheServerAreOneLine) {
    expectFailure(tonquilctl("", {"apply", "--curve", "[1]"}));
    expectFailure(tonquilctl(":987", {"displays"}));
    const auto server =
        XServer::start({.arguments = {"-extension", "RANDR"}, .framebufferOnly = true}).value();
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"displays"}, {"apply", "--curve", "[1]"}, {"restore"}, {"read"}}) {
        expectFailure(tonquilctl(server->display(), arguments));
    }
    const ProcessResult nowhere =
        run({.command = {"sh", "-c", TONQUILCTL " --help >/dev/full"}}).value();
    EXPECT_EQ(nowhere.exitStatus, 1) << "output that is lost is a failure";
}

TEST(Failures, OfWhatIsGivenChangeNoDisplay) {
    const auto server = XServer::start().value();
    mustSucceed(server->plug("DUMMY1", "1280x1024"));
    const RampReader reader = RampReader::connect(server->display()).value();
    const Ramp before = reader.read("DUMMY0").value();

    std::string nested;
    for (int level = 0; level < 100'000; ++level) {
        nested += "<array>";
    }
    const std::string unreadable = fileWith("x");
    const ScratchFolder folder;
    const std::vector<std::vector<std::string>> rows{
        {"apply", "/nowhere/at/all"},
        {"apply", folder.path()},
        {"apply", "/dev/zero"},
        {"apply", unreadable},
        {"apply", fileWith(std::string(767, 'x'))},
        {"apply", fileWith(std::string(20 << 20, 'x'))},
        {"apply", fileWith("<?xml version=\"1.0\"?><plist version=\"1.0\">" + nested)},
        {"apply", fileWith("<?xml version=\"1.0\"?>" + std::string(2'000, ' '))},
        {"apply", fileWith("bplist00" + std::string(2'000, '\1'))},
        {"apply", fileWith("<plist><array>" + std::string(1'000, ' ') + "</array></plist>")},
        {"apply", propertyListFile({{"Format", 1}})},
        {"apply",
         propertyListFile({{"Format", 1}, {"Screens", {{"9-9-9", PropertyValue::object()}}}})},
        {"apply", "--curve", "[2]"},
        {"apply", "--curve", "[0,[0]]"},
        {"apply", "--curve", "0,0"},
        {"apply", "--curve", std::string(100'000, '[')},
        {"apply", "--curve", "[1]", "--display", "9-9-9"},
        {"restore", "--display", "9-9-9"},
        {"read", "--display", "9-9-9"}};
    for (const auto& arguments : rows) {
        SCOPED_TRACE(arguments[1].substr(0, 60));
        expectFailure(tonquilctl(server->display(), arguments));
        EXPECT_EQ(reader.read("DUMMY0").value(), before);
    }
    EXPECT_EQ(tonquilctl(server->display(), {"apply"}).exitStatus, 2);
}

}  // namespace
}  // namespace tonquil
