// Records that keep their bytes private and say what they hold only through
// their own methods: identifiers, times, addresses. Their images are decoded
// by the class itself (ValueLayouts.cpp).
#pragma once

#include "RecordLayout.h"
#include "records/PElapsedTime.h"
#include "records/PIpAddress.h"
#include "records/PTime.h"

#define ZEK_VALUE_LAYOUT(Record)                                                                                       \
    template <>                                                                                                        \
    struct KnownLayout<Record> {                                                                                       \
        static constexpr bool known = true;                                                                            \
        static RecordLayout const& layout();                                                                           \
    };

ZEK_VALUE_LAYOUT(PTime)
ZEK_VALUE_LAYOUT(PIpAddress)
ZEK_VALUE_LAYOUT(PElapsedTime)
