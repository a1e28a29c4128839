// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/property_list.h"

#include <plist/plist.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace lumora::platform {

namespace {

constexpr std::size_t kMaximumBytes = std::size_t{1024} * 1024;
/// The library follows containers inside containers by recursion.
constexpr std::uint64_t kMaximumContainers = 4096;
constexpr std::string_view kBinaryMark = "bplist00";
constexpr std::size_t kTrailerBytes = 32;

struct PlistDeleter {
    void operator()(void* node) const { plist_free(node); }
};
struct MallocDeleter {
    void operator()(void* memory) const
    {
        std::free(memory); // NOLINT(cppcoreguidelines-no-malloc): the library's malloc.
    }
};

/// No fewer than the containers that the text can nest.
std::uint64_t containersAtMost(std::string_view bytes)
{
    std::uint64_t count = 0;
    if (bytes.substr(0, kBinaryMark.size()) == kBinaryMark) {
        if (bytes.size() < kBinaryMark.size() + kTrailerBytes) {
            return kMaximumContainers + 1;
        }
        // The number of objects, eight bytes, the highest first.
        for (const char byte : bytes.substr(bytes.size() - 24, 8)) {
            count = count << 8U | static_cast<unsigned char>(byte);
        }
        return count;
    }
    for (const std::string_view opening : {"<dict", "<array"}) {
        for (std::size_t place = bytes.find(opening); place != std::string_view::npos;
             place = bytes.find(opening, place + opening.size())) {
            ++count;
        }
    }
    return count;
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

std::optional<PropertyListDictionary> readPropertyListDictionary(std::string_view bytes)
{
    if (bytes.size() > kMaximumBytes || containersAtMost(bytes) > kMaximumContainers) {
        return std::nullopt;
    }
    plist_t parsed = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &parsed);
    const std::unique_ptr<void, PlistDeleter> root(parsed);
    if (root == nullptr || plist_get_node_type(parsed) != PLIST_DICT) {
        return std::nullopt;
    }
    PropertyListDictionary dictionary;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(parsed, &iterator);
    const std::unique_ptr<void, MallocDeleter> iteratorOwner(iterator);
    while (true) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(parsed, iterator, &key, &value);
        const std::unique_ptr<char, MallocDeleter> keyOwner(key);
        if (key == nullptr || value == nullptr) {
            return dictionary;
        }
        dictionary.insert_or_assign(key, readValue(value));
    }
}

} // namespace lumora::platform
