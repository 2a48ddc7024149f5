// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <clocale>
#include <locale>

#include "Bytes.h"
#include "plist/PropertyListWriter.h"

namespace tonquil {
namespace {

using namespace std::string_literals;

std::string utf16(std::u16string_view text, bool bigEndian) {
    std::string bytes;
    for (const char16_t c : text) {
        const std::string pair = bigEndianBytes(c, 2);
        bytes += bigEndian ? pair : std::string(pair.rbegin(), pair.rend());
    }
    return bytes;
}

TEST(XmlPropertyList, ReadsEveryType) {
    // List contents on the left, their JSON equivalent on the right.
    const std::string table = R"(<true/> → true | <false> </false> → false
<integer> 12&#10;</integer> → 12 | <integer>-0</integer> → 0 | <integer>+0x1F</integer> → 31
<integer>18446744073709551615</integer> → 18446744073709551615
<integer>-0X8000000000000000</integer> → -9223372036854775808
<real>1</real> → 1.0 | <real>&#9;+2.5e1 </real> → 25.0 | <real>-0</real> → -0.0 | <string/> → ""
<string> a&lt;&#x263E;<![CDATA[<b>]]>c<!-- no -->d&#13; </string> → " a<☾<b>cd\r "
<date>2020-02-29T00:00:00Z</date> → "2020-02-29T00:00:00Z" | <array/> → [] | <dict/> → {}
<data> AA&#10;ECA w== </data> → {"bytes":[0,1,2,3],"subtype":null}
<data/> → {"bytes":[],"subtype":null} | <array> <true/> <!-- --> <array/></array> → [true,[]]
<dict><key>b</key><true/><key/><string>a</string></dict> → {"":"a","b":true}
<dict><key>a</key><true/><key>a</key><false/></dict> → {"a":false})";
    for (const std::string& row : cellsOf(table)) {
        const auto sides = split(row, " → ");
        EXPECT_EQ(read("<plist>" + sides.at(0) + "</plist>"), sides.at(1)) << row;
    }
}

TEST(XmlPropertyList, RefusesInvalidPropertyLists) {
    const auto expectRefused = [](const std::string& open, const std::string& table,
                                  const std::string& close) {
        for (const std::string& cell : cellsOf(table)) {
            EXPECT_EQ(read(open + cell + close), "refused") << open << cell;
        }
    };
    expectRefused("", R"( | <plist> | <plist/> | # a table | <?xml version='1.0'?><dict/>
<html><plist><true/></plist></html> | <plist:plist><true/></plist:plist> | <plist><true/></plist>x
<!DOCTYPE plist SYSTEM 'x'><plist><string>&a;</string></plist>
<!DOCTYPE plist [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;'>]><plist><string>&b;</string></plist>
<!DOCTYPE plist [<!ENTITY a SYSTEM '/etc/hostname'>]><plist><string>&a;</string></plist>
<!DOCTYPE plist [<!ATTLIST true a CDATA 'b'>]><plist><true/></plist>)",
                  "");
    expectRefused("<plist>", R"(<!-- --> | <True/> | <true/><true/> | x<true/> | <key>a</key>
<array>x</array> | <dict>x</dict> | <true>x</true> | <false>0</false> | <plist><true/></plist>
<array><key>a</key></array> | <dict><true/></dict> | <dict><key>a</key></dict>
<dict><key>a</key><key>b</key></dict> | <dict><key>a</key><true/><true/></dict>
<dict><key>a<true/></key><true/></dict> | <string><b/></string>)",
                  "</plist>");
    expectRefused("<plist><integer>",
                  " | 1.0 | 1 2 | 0x | --1 | +-1 | 0x-1 | 1F | 18446744073709551616"
                  " | -9223372036854775809",
                  "</integer></plist>");
    expectRefused("<plist><real>", " | . | 1,5 | 1.5x | 0x1p3 | +-1 | --1 | 1 2 | in | 1e999",
                  "</real></plist>");
    expectRefused("<plist><data>",
                  "A | AA | AA= | AA=== | A=== | ==== | AB== | AAB= | AA==AAAA | AA-_",
                  "</data></plist>");
    expectRefused("<plist><string>",
                  "&#0; | &#1; | &a; | \x01 | \xC3 | \xED\xA0\x80 | \xEF\xBF\xBF | \0"s,
                  "</string></plist>");
}

TEST(XmlPropertyList, IsDetectedAndReadInEveryCommonEncoding) {
    const std::string utf8 = "<plist version='1.0' a='b'><string>é</string></plist>";
    std::vector<std::string> rows = {
        "\xEF\xBB\xBF" + utf8,
        " \t\r\n<?xml version='1.0' encoding='UTF-8'?>\n<!-- -->\n" + utf8 + "\n",
        "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://x/y.dtd\">\n" + utf8,
        "<?xml version='1.0' encoding='ISO-8859-1'?><plist><string>\xE9</string></plist>"};
    for (const bool bigEndian : {false, true}) {
        rows.push_back(
            utf16(u"\uFEFF\n<?xml version='1.0'?><plist><string>é</string></plist>", bigEndian));
        rows.push_back(utf16(u"<?xml version='1.0'?><plist><string>é</string></plist>", bigEndian));
    }
    for (const std::string& text : rows) {
        EXPECT_EQ(read(text), "\"é\"") << text;
    }
    for (const std::string& text :
         split(" \t\r\n<plist|<!DOCTYPE|\xEF\xBB\xBF\n<!--|bplist", "|")) {
        EXPECT_TRUE(beginsLikePropertyList(bytesOf(text))) << text;
    }
    const std::string others = "| |bplis|\xEF\xBB\xBF|\xFF\xFE|<?xm|<html>|x<plist>|\v<plist>|";
    for (const std::string& text : split(others + "0 1\n<plist>|\xFF\xFE<?xml", "|")) {
        EXPECT_FALSE(beginsLikePropertyList(bytesOf(text))) << text;
    }
    EXPECT_FALSE(beginsLikePropertyList(bytesOf(utf16(u"\uFEFF1 2 3", true))));
}

struct CommaPoint : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(XmlPropertyList, ReadsAndWritesNumbersInAnyLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const std::locale former = std::locale::global(std::locale(std::locale(), new CommaPoint));
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    const auto point = read("<plist><real>1.5</real></plist>");
    const auto written = writePropertyList({1234.5, 1234});
    std::locale::global(former);
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(point, "1.5");
    EXPECT_NE(written->find("<real>1234.5</real>\n\t<integer>1234</integer>"), std::string::npos);
}

}  // namespace
}  // namespace tonquil
