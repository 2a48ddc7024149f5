// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <limits>
#include <locale>

#include "Bytes.h"
#include "SameValue.h"
#include "plist/PropertyListReader.h"

namespace tonquil {
namespace {

using namespace std::string_literals;

Result<PropertyValue> read(std::string_view text) {
    return readPropertyList(bytesOf(text));
}

std::string list(const std::string& contents) {
    return "<plist>" + contents + "</plist>";
}

TEST(XmlPropertyList, ReadsEachTypeAsItsOwn) {
    const std::vector<std::pair<std::string, PropertyValue>> rows = {
        {"<true/>", true},
        {"<false> </false>", false},
        {"<integer> 12\n</integer>", 12U},
        {"<integer>-0</integer>", 0U},
        {"<integer>+0x1F</integer>", 31U},
        {"<integer>18446744073709551615</integer>", std::numeric_limits<std::uint64_t>::max()},
        {"<integer>-9223372036854775808</integer>", std::numeric_limits<std::int64_t>::min()},
        {"<integer>-0X8000000000000000</integer>", std::numeric_limits<std::int64_t>::min()},
        {"<real>1</real>", 1.0},
        {"<real>\t+2.5e1 </real>", 25.0},
        {"<real>-InFiNity</real>", -std::numeric_limits<double>::infinity()},
        {"<real>+nan</real>", std::numeric_limits<double>::quiet_NaN()},
        {"<string/>", ""},
        {"<string> a&lt;&#x263E;<![CDATA[<b>]]>c<!-- no -->d&#13;\n</string>", " a<☾<b>cd\r\n"},
        {"<date>2020-02-29T00:00:00Z</date>", "2020-02-29T00:00:00Z"},
        {"<data> AA\n\tECA w== </data>", PropertyValue::binary({0, 1, 2, 3})},
        {"<data/>", PropertyValue::binary({})},
        {"<array/>", PropertyValue::array()},
        {"<dict/>", PropertyValue::object()},
        {"<array> <true/> <!-- --> <array/>\n</array>", {true, PropertyValue::array()}},
        {"<dict><key>b</key><true/><key/><string>a</string></dict>", {{"b", true}, {"", "a"}}},
        {"<dict><key>a</key><true/><key>a</key><false/></dict>", {{"a", false}}},
    };
    for (const auto& [text, expected] : rows) {
        SCOPED_TRACE(text);
        const auto value = read(list(text));
        ASSERT_TRUE(value) << value.error().detail;
        EXPECT_TRUE(isSameValue(*value, expected)) << value->dump();
        EXPECT_EQ(value->type(), expected.type());
    }
}

TEST(XmlPropertyList, RefusesWhatIsNotAPropertyListInWhole) {
    const std::string laughs =
        "<!DOCTYPE plist [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;'>]>";
    const std::vector<std::string> rows = {
        "",
        " ",
        "<",
        "<plist",
        "<plist>",
        "<plist/>",
        list(""),
        list(" <!-- --> "),
        "# a table",
        "<dict/>",
        "<?xml version='1.0'?><dict/>",
        "<html><plist><true/></plist></html>",
        "<plist:plist><true/></plist:plist>",
        list("<True/>"),
        list("<number>1</number>"),
        list("<true/><true/>"),
        list("<true/>") + "<true/>",
        list("<true/>") + "x",
        list("<true/>") + list("<true/>"),
        list("<true/>") + "\0"s,
        list("x<true/>"),
        list("<array>x</array>"),
        list("<dict>x</dict>"),
        list("<true>x</true>"),
        list("<false>0</false>"),
        list("<plist><true/></plist>"),
        list("<key>a</key>"),
        list("<array><key>a</key></array>"),
        list("<dict><true/></dict>"),
        list("<dict><key>a</key></dict>"),
        list("<dict><key>a</key><key>b</key></dict>"),
        list("<dict><key>a</key><true/><true/></dict>"),
        list("<dict><key>a<true/></key><true/></dict>"),
        list("<string><b/></string>"),
        list("<integer><true/></integer>"),
        list("<array><true/>"),
        list("<array></dict>"),
        // Numbers.
        list("<integer/>"),
        list("<integer> </integer>"),
        list("<integer>1.0</integer>"),
        list("<integer>1 2</integer>"),
        list("<integer>0x</integer>"),
        list("<integer>--1</integer>"),
        list("<integer>+-1</integer>"),
        list("<integer>0x-1</integer>"),
        list("<integer>1F</integer>"),
        list("<integer>18446744073709551616</integer>"),
        list("<integer>-9223372036854775809</integer>"),
        list("<real/>"),
        list("<real>.</real>"),
        list("<real>1,5</real>"),
        list("<real>1.5x</real>"),
        list("<real>0x1p3</real>"),
        list("<real>+-1</real>"),
        list("<real>--1</real>"),
        list("<real>1 2</real>"),
        list("<real>in</real>"),
        list("<real>1e999</real>"),
        // Data.
        list("<data>A</data>"),
        list("<data>AA</data>"),
        list("<data>AA=</data>"),
        list("<data>AA===</data>"),
        list("<data>A===</data>"),
        list("<data>=</data>"),
        list("<data>====</data>"),
        list("<data>AB==</data>"),
        list("<data>AAB=</data>"),
        list("<data>AA==AAAA</data>"),
        list("<data>AA-_</data>"),
        list("<data>AAA\xC2\xA0"
             "A</data>"),
        // Text.
        list("<string>\0</string>"s),
        list("<string>&#0;</string>"),
        list("<string>&#1;</string>"),
        list("<string>\x01</string>"),
        list("<string>\xC3</string>"),
        list("<string>\xED\xA0\x80</string>"),
        list("<string>\xEF\xBF\xBF</string>"),
        list("<string>&a;</string>"),
        // Declarations, also where an external document type makes an unknown entity lawful.
        "<!DOCTYPE plist SYSTEM 'x'>" + list("<string>&a;</string>"),
        "<!DOCTYPE plist SYSTEM 'x' [%a;<!ENTITY b 'c'>]>" + list("<string>&b;</string>"),
        laughs + list("<string>&b;</string>"),
        laughs + list("<true/>"),
        "<!DOCTYPE plist [<!ENTITY % a 'b'>]>" + list("<true/>"),
        "<!DOCTYPE plist [<!ENTITY a SYSTEM '/etc/hostname'>]>" + list("<true/>"),
        "<!DOCTYPE plist [<!ATTLIST true a CDATA 'b'>]>" + list("<true/>"),
        // Encodings.
        "<?xml version='1.0' encoding='no-such'?>" + list("<true/>"),
        "<?xml version='1.0' encoding='US-ASCII'?>" + list("<string>\xC3\xA9</string>"),
        " <?xml version='1.0'?>" + list("<true/>"),
        utf16(list("<true/>"), true, true) + "x",
    };
    for (const std::string& text : rows) {
        SCOPED_TRACE(text);
        const auto value = read(text);
        ASSERT_FALSE(value) << value->dump();
        EXPECT_FALSE(value.error().sentence.empty());
    }
}

TEST(XmlPropertyList, ReadsEveryUsualEncodingAndHeader) {
    const std::string apart = list("<string>é</string>");
    const std::string latin = list("<string>\xE9</string>");
    const std::string numbered = list("<string>&#233;</string>");
    const std::vector<std::string> rows = {
        apart,
        "\xEF\xBB\xBF" + apart,
        "<?xml version='1.0' encoding='UTF-8'?>\n<!-- -->\n" + apart + "\n<!-- -->\n",
        "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
        "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n" +
            apart,
        "<plist version='0.9' xmlns='urn:x' other='&#13;'><string x='y'>é</string></plist>",
        "<?xml version='1.0' encoding='ISO-8859-1'?>" + latin,
        "<?xml version='1.0' encoding='US-ASCII'?>" + numbered,
        utf16(numbered, true, true),
        utf16(numbered, false, true),
        utf16("<?xml version='1.0' encoding='UTF-16'?>" + numbered, false, true),
        utf16("<?xml version='1.0'?>" + numbered, true, false),
        utf16("<?xml version='1.0'?>" + numbered, false, false),
    };
    for (const std::string& text : rows) {
        SCOPED_TRACE(text);
        EXPECT_TRUE(beginsLikePropertyList(bytesOf(text)));
        const auto value = read(text);
        ASSERT_TRUE(value) << value.error().detail;
        EXPECT_EQ(*value, "é");
    }
}

TEST(XmlPropertyList, IsToldFromOtherFilesByItsBeginning) {
    const std::vector<std::pair<std::string, bool>> rows = {
        {"<?xml", true},
        {" \t\r\n<plist", true},
        {"<!DOCTYPE", true},
        {"<!--", true},
        {"\xEF\xBB\xBF\n<!--", true},
        {"bplist00", true},
        {"bplist", true},
        {"bplis", false},
        {"", false},
        {" ", false},
        {"\xEF\xBB\xBF", false},
        {"\xFF\xFE", false},
        {"<?xm", false},
        {"<html>", false},
        {"<dict>", false},
        {"x<plist>", false},
        {"\v<plist>", false},
        {" bplist00", false},
        {"0 1\n<plist>", false},
        {"\xFF\xFE<?xml", false},
        {"\0\0<?xml"s, false},
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(beginsLikePropertyList(bytesOf(text)), expected) << text;
    }
    for (const bool bigEndian : {false, true}) {
        EXPECT_TRUE(beginsLikePropertyList(bytesOf(utf16(" <plist", bigEndian, true))));
        EXPECT_FALSE(beginsLikePropertyList(bytesOf(utf16("1 2 3", bigEndian, true))));
    }
}

TEST(XmlPropertyList, ReadsARealToTheNearestSingleEvenWhereTwoRoundingsWouldMiss) {
    const std::vector<std::pair<std::string, float>> rows = {
        // Just above, exactly at, and just below the middle of 1 and the next single.
        {"1.0000000596046447753906250000000000001", 0x1.000002p+0F},
        {"1.000000059604644775390625", 1.0F},
        {"1.0000000596046447753906249999999999999", 1.0F},
        // The same with an odd neighbour below, which a tie would round away from.
        {"-1.0000001788139343261718749999999999999", -0x1.000002p+0F},
        {"-1.000000178813934326171875", -0x1.000004p+0F},
        {"0.1", 0.1F},
        {"3.40282356779733661637539395458142568448e38", std::numeric_limits<float>::infinity()},
        {"3.40282356779733661637539395458142568447e38", std::numeric_limits<float>::max()},
        {"1e39", std::numeric_limits<float>::infinity()},
        {"-0.0", -0.0F},
        {"1.401298464324817e-45", std::numeric_limits<float>::denorm_min()},
    };
    for (const auto& [text, expected] : rows) {
        SCOPED_TRACE(text);
        const auto value = read(list("<real>" + text + "</real>"));
        ASSERT_TRUE(value) << value.error().detail;
        EXPECT_EQ(std::bit_cast<std::uint32_t>(toSinglePrecision(value->get<double>())),
                  std::bit_cast<std::uint32_t>(expected));
    }
    // What a single does not need is kept.
    EXPECT_EQ(read(list("<real>0.1</real>"))->get<double>(), 0.1);
}

struct CommaPoint : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

TEST(XmlPropertyList, ReadsNumbersAlikeInEveryLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const std::locale former = std::locale::global(std::locale(std::locale(), new CommaPoint));
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE"}) {
        if (std::setlocale(LC_ALL, name) != nullptr) {
            break;
        }
    }
    const auto point = read(list("<real>1.5</real>"));
    const auto comma = read(list("<real>1,5</real>"));
    std::locale::global(former);
    std::setlocale(LC_ALL, before.c_str());
    ASSERT_TRUE(point);
    EXPECT_EQ(*point, 1.5);
    EXPECT_FALSE(comma);
}

TEST(XmlPropertyList, TellsWhichLineIsDamaged) {
    const auto value = read("<plist>\n<array>\n<integer>x</integer></array></plist>");
    ASSERT_FALSE(value);
    EXPECT_EQ(value.error().detail, "an integer that is none or is out of range in line 3");
}

}  // namespace
}  // namespace tonquil
