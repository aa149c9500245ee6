// How the image of a record is laid out: its fields in order, each with its
// offset in the image and a decoder picked from the field's C++ type. The
// layouts are declared from the record classes themselves (member pointers),
// so an offset can never disagree with the class.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "DecodedValue.h"

struct FieldLayout {
    char const* name;
    size_t offset;
    size_t size;
    DecodedValue (*decode)(unsigned char const* at);
};

struct RecordLayout {
    char const* name;
    size_t size;
    std::vector<FieldLayout> fields;
    // For records whose fields are private: the class decodes the whole image.
    DecodedValue (*decodeWhole)(unsigned char const* image) = nullptr;
};

// A record type with a layout says so by a specialization (RecordLayouts.cpp).
template <typename T>
struct KnownLayout {
    static constexpr bool known = false;
};

DecodedValue decodeRecord(RecordLayout const& layout, unsigned char const* image);
DecodedValue hexBytes(unsigned char const* at, size_t size);
// Text up to its first zero byte, at most `size` bytes.
DecodedValue charText(unsigned char const* at, size_t size);

template <typename T>
DecodedValue decodeField(unsigned char const* at)
{
    if constexpr (std::is_same_v<T, bool>) {
        return DecodedValue::boolean(at[0] != 0);
    } else if constexpr (std::is_enum_v<T>) {
        return decodeField<std::underlying_type_t<T>>(at);
    } else if constexpr (std::is_integral_v<T> || std::is_floating_point_v<T>) {
        T value;
        std::memcpy(&value, at, sizeof value);
        if constexpr (std::is_floating_point_v<T>)
            return DecodedValue::number(std::to_string(static_cast<double>(value)));
        else
            return DecodedValue::number(std::to_string(value));
    } else if constexpr (std::is_array_v<T>) {
        using Element = std::remove_extent_t<T>;
        constexpr size_t count = std::extent_v<T>;
        if constexpr (std::is_same_v<Element, char>) {
            return charText(at, count);
        } else if constexpr (std::is_same_v<Element, unsigned char> || std::is_same_v<Element, signed char>) {
            return hexBytes(at, count);
        } else {
            DecodedValue list{DecodedValue::List, {}, {}, {}};
            for (size_t i = 0; i < count; ++i)
                list.items.push_back(decodeField<Element>(at + i * sizeof(Element)));
            return list;
        }
    } else if constexpr (KnownLayout<T>::known) {
        return decodeRecord(KnownLayout<T>::layout(), at);
    } else {
        // A type without a layout of its own still shows all of its bytes.
        return hexBytes(at, sizeof(T));
    }
}

// The field of `Record` (declared in it or a base) that `member` points to; the offset is measured on
// a sample record, since records are not standard-layout types.
template <typename Record, typename Owner, typename T>
FieldLayout fieldOf(char const* name, T Owner::*member)
{
    static Record const sample;
    auto const* base = reinterpret_cast<unsigned char const*>(&sample);
    auto const* field = reinterpret_cast<unsigned char const*>(&(sample.*member));
    return FieldLayout{name, static_cast<size_t>(field - base), sizeof(T), &decodeField<T>};
}

// The layouts of identifiers, times and addresses (ValueLayouts.cpp).
std::vector<RecordLayout const*> const& valueLayouts();
// Every record type that has a layout, in a fixed order.
std::vector<RecordLayout const*> const& allLayouts();
RecordLayout const* layoutNamed(std::string const& name);
