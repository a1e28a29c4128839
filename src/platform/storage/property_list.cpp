// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/storage/property_list.h"

#include <plist/plist.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace lumora::platform {

namespace {

constexpr std::size_t kMaximumListBytes = std::size_t{1024} * 1024;
constexpr std::size_t kMaximumContainers = 4096;
constexpr std::string_view kBinaryMark = "bplist00";
constexpr std::size_t kTrailerBytes = 32;

struct PlistDeleter {
    void operator()(void* node) const { plist_free(node); }
};

/// The number of `size` bytes at `place`, the highest first; none past the end.
std::optional<std::uint64_t> numberAt(std::string_view bytes, std::uint64_t place,
                                      std::uint64_t size)
{
    if (size == 0 || size > sizeof(std::uint64_t) || place > bytes.size() ||
        size > bytes.size() - place) {
        return std::nullopt;
    }
    std::uint64_t number = 0;
    for (const char byte : bytes.substr(place, size)) {
        number = number << 8U | static_cast<unsigned char>(byte);
    }
    return number;
}

unsigned kindOf(std::string_view object)
{
    return static_cast<unsigned char>(object.front()) >> 4U;
}

bool isContainer(std::string_view object)
{
    return kindOf(object) == 0xA || kindOf(object) == 0xC || kindOf(object) == 0xD;
}

/// The members that a binary container refers to, by their numbers.
std::optional<std::vector<std::uint64_t>> membersOf(std::string_view object,
                                                    std::uint64_t referenceSize)
{
    std::uint64_t place = 1;
    std::optional<std::uint64_t> length = static_cast<unsigned char>(object.front()) & 0xFU;
    if (length == 0xFU) {
        // A longer one has its length as a number object behind the mark.
        const auto lengthSize = std::uint64_t{1} << (numberAt(object, 1, 1).value_or(0) & 0xFU);
        length = numberAt(object, 2, lengthSize);
        place += 1 + lengthSize;
    }
    if (!length || *length > object.size()) {
        return std::nullopt;
    }
    const std::uint64_t count = kindOf(object) == 0xD ? 2 * *length : *length;
    std::vector<std::uint64_t> members;
    for (std::uint64_t member = 0; member < count; ++member) {
        const auto number = numberAt(object, place + member * referenceSize, referenceSize);
        if (!number) {
            return std::nullopt;
        }
        members.push_back(*number);
    }
    return members;
}

/// Whether the library reads the binary list in bounded time and memory: no
/// container is a member twice, and there are not too many of them.
bool isBounded(std::string_view bytes)
{
    if (bytes.size() < kBinaryMark.size() + kTrailerBytes) {
        return false;
    }
    const std::string_view trailer = bytes.substr(bytes.size() - kTrailerBytes);
    const auto offsetSize = static_cast<unsigned char>(trailer[6]);
    const auto referenceSize = static_cast<unsigned char>(trailer[7]);
    const std::uint64_t count = numberAt(trailer, 8, 8).value_or(0);
    const std::uint64_t table = numberAt(trailer, 24, 8).value_or(0);
    if (count > bytes.size() || table > bytes.size()) {
        return false;
    }
    std::vector<std::string_view> objects;
    for (std::uint64_t object = 0; object < count; ++object) {
        const auto offset = numberAt(bytes, table + object * offsetSize, offsetSize);
        if (!offset || *offset >= bytes.size()) {
            return false;
        }
        objects.push_back(bytes.substr(*offset));
    }
    std::vector<bool> held(objects.size());
    std::size_t containers = 0;
    for (const std::string_view object : objects) {
        if (!isContainer(object)) {
            continue;
        }
        const auto members = membersOf(object, referenceSize);
        if (!members || ++containers > kMaximumContainers) {
            return false;
        }
        for (const std::uint64_t member : *members) {
            if (member >= count || (isContainer(objects[member]) && held[member])) {
                return false;
            }
            held[member] = true;
        }
    }
    return true;
}

PropertyListValue readValue(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0 ? 1.0 : 0.0;
    }
    case PLIST_UINT: {
        std::uint64_t value = 0;
        plist_get_uint_val(node, &value);
        // Negative integers come as their two's complement.
        return static_cast<double>(static_cast<std::int64_t>(value));
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING: {
        std::uint64_t length = 0;
        const char* const text = plist_get_string_ptr(node, &length);
        return text == nullptr ? std::string() : std::string(text, length);
    }
    default:
        return {};
    }
}

} // namespace

std::optional<PropertyListDictionary>
readPropertyListDictionary(std::string_view bytes, std::span<const std::string_view> keys)
{
    const bool binary = bytes.substr(0, kBinaryMark.size()) == kBinaryMark;
    if (bytes.size() > kMaximumListBytes || (binary && !isBounded(bytes))) {
        return std::nullopt;
    }
    plist_t parsed = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &parsed);
    const std::unique_ptr<void, PlistDeleter> root(parsed);
    if (root == nullptr || plist_get_node_type(parsed) != PLIST_DICT) {
        return std::nullopt;
    }
    PropertyListDictionary dictionary;
    // Asked for by name: handing out a key that holds a NUL, the library ends
    // the program.
    for (const std::string_view key : keys) {
        const plist_t value = plist_dict_get_item(parsed, std::string(key).c_str());
        if (value != nullptr) {
            dictionary.emplace(key, readValue(value));
        }
    }
    return dictionary;
}

} // namespace lumora::platform
