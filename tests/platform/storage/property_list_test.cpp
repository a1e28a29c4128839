// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/storage/property_list.h"

#include <gtest/gtest.h>
#include <plist/plist.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace lumora::platform {

namespace {

constexpr const char* kDocument = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN"
 "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict>
<key>on</key><true/><key>off</key><false/>
<key>count</key><integer>42</integer><key>below</key><integer>-3</integer>
<key>rate</key><real>0.5</real><key>name</key><string>l&apos;été &amp; l&#233;</string>
<key>empty</key><string></string><key>when</key><date>2020-01-01T00:00:00Z</date>
<key>bytes</key><data>AAEC</data><key>list</key><array><integer>1</integer></array>
<key>inner</key><dict><key>hidden</key><true/></dict>
</dict></plist>)";

std::string binaryOf(const std::string& document)
{
    plist_t root = nullptr;
    plist_from_xml(document.data(), static_cast<std::uint32_t>(document.size()), &root);
    char* bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(root, &bytes, &length);
    std::string binary(bytes, length);
    plist_to_bin_free(bytes);
    plist_free(root);
    return binary;
}

/// Lists in lists, each twice a member of the one before: small to store,
/// 2^13 members when followed.
std::string doublingBinary()
{
    std::string bytes = "bplist00";
    std::string offsets;
    const auto add = [&](const std::string& object) {
        offsets += '\0';
        offsets += static_cast<char>(bytes.size());
        bytes += object;
    };
    add("\xD1\x01\x02");
    add("\x51"
        "a");
    for (char next = 3; next < 16; ++next) {
        add({'\xA2', next, next});
    }
    add("\x09");
    const auto table = static_cast<char>(bytes.size());
    const auto number = [](char value) { return std::string(7, '\0') + value; };
    return bytes + offsets + std::string(6, '\0') + "\x02\x01" + number(16) + number(0) +
           number(table);
}

std::optional<PropertyListDictionary> read(std::string_view bytes)
{
    constexpr std::string_view kKeys[] = {"on",    "off",  "count", "below", "rate",  "name",
                                          "empty", "when", "bytes", "list",  "inner", "absent"};
    return readPropertyListDictionary(bytes, kKeys);
}

std::string document(const std::string& root)
{
    return R"(<?xml version="1.0"?><plist version="1.0">)" + root + "</plist>";
}

} // namespace

TEST(PropertyList, ReadsScalarsOfEitherFormat)
{
    const PropertyListDictionary expected = {
        {"on", 1.0},   {"off", 0.0},           {"count", 42.0}, {"below", -3.0},
        {"rate", 0.5}, {"name", "l'été & lé"}, {"empty", ""},   {"when", std::monostate()},
        {"bytes", {}}, {"list", {}},           {"inner", {}},
    };

    EXPECT_EQ(read(kDocument), expected);
    EXPECT_EQ(read(binaryOf(kDocument)), expected);
}

TEST(PropertyList, AnythingButADictionaryIsNone)
{
    const std::string binary = binaryOf(kDocument);
    std::string manyObjects = binary;
    manyObjects[manyObjects.size() - 24] = '\x7f';
    std::string deep;
    for (int level = 0; level < 30'000; ++level) {
        deep += "<array>";
    }
    const std::pair<const char*, std::string> cases[] = {
        {"nothing", ""},
        {"no list at all", "{\"json\": true}"},
        {"a list", document("<array><true/></array>")},
        {"a text", document("<string>text</string>")},
        {"cut short", std::string(kDocument).substr(0, 300)},
        {"the binary mark alone", "bplist00"},
        {"a binary list", binaryOf(document("<array><true/></array>"))},
        {"binary cut short", binary.substr(0, binary.size() / 2)},
        {"more objects than bytes", manyObjects},
        {"a container in two places", doublingBinary()},
        {"containers left open", document("<dict><key>a</key>" + deep)},
        {"too big",
         document("<dict><key>a</key><string>" + std::string(1 << 20, 'x') + "</string></dict>")},
    };
    for (const auto& [why, bytes] : cases) {
        EXPECT_EQ(read(bytes), std::nullopt) << why;
    }
}

TEST(PropertyList, AcceptsANulInAKeyAndResolvesNoEntity)
{
    std::string binary = binaryOf(kDocument);
    // Two units of UTF-16 in the place of six bytes: a NUL in a key.
    binary.replace(binary.find("\x55"
                               "count"),
                   6, std::string("\x62\0c\0\0 ", 6));
    EXPECT_EQ(read(binary).value().at("rate"), PropertyListValue{0.5});
    EXPECT_EQ(read(document(R"(<dict><key>a</key><string>&file;</string></dict>)")), std::nullopt)
        << "an entity of the document's own";
}

} // namespace lumora::platform
