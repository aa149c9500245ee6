// One return code of the management library, filled by the operations that
// can partly succeed: they leave in it the code of the first inner attempt
// that failed, while their own result says "partial success".
#pragma once

#include <string>

#include "api/MhbaReturn.h"

class MHbaReturnBuffer {
public:
    MHbaReturnBuffer() = default;
    explicit MHbaReturnBuffer(e_MHBA_RETURN code) : returnCode(code) {}

    // The library's own text for the code held; it needs the loaded API.
    std::string displayText() const;

    // The library writes this field directly, so it is the whole object.
    e_MHBA_RETURN returnCode = MHBA_S_OK;
};

static_assert(sizeof(MHbaReturnBuffer) == 4, "the library fills this buffer as one 32-bit code");
