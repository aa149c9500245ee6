#include "RecordLayout.h"

DecodedValue decodeRecord(RecordLayout const& layout, unsigned char const* image)
{
    if (layout.decodeWhole)
        return layout.decodeWhole(image);
    DecodedValue record;
    for (FieldLayout const& field : layout.fields)
        record.members.emplace_back(field.name, field.decode(image + field.offset));
    return record;
}

DecodedValue hexBytes(unsigned char const* at, size_t size)
{
    static char const digits[] = "0123456789abcdef";
    std::string text;
    text.reserve(size * 2);
    for (size_t i = 0; i < size; ++i) {
        text += digits[at[i] >> 4];
        text += digits[at[i] & 0xf];
    }
    return DecodedValue::text(text);
}

DecodedValue charText(unsigned char const* at, size_t size)
{
    size_t length = 0;
    while (length < size && at[length] != 0)
        ++length;
    return DecodedValue::text(std::string(reinterpret_cast<char const*>(at), length));
}

RecordLayout const* layoutNamed(std::string const& name)
{
    for (RecordLayout const* layout : allLayouts())
        if (name == layout->name)
            return layout;
    return nullptr;
}
