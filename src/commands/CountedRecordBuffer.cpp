#include "commands/CountedRecordBuffer.h"

#include "core/ZekcliReturn.h"
#include "records/PBase.h"

namespace {

constexpr uint32_t kHeaderBytes = 8;

} // namespace

CountedRecordBuffer::CountedRecordBuffer()
{
    appendInt32(kHeaderBytes);
    appendInt32(0);
}

void CountedRecordBuffer::beginImage(unsigned int imageSize)
{
    appendInt32(imageSize + 4);
    storeInt32(kCountOffset, ++count);
}

void CountedRecordBuffer::appendInt32(uint32_t value)
{
    bytes.resize(bytes.size() + sizeof value);
    storeInt32(bytes.size() - sizeof value, value);
}

void CountedRecordBuffer::storeInt32(size_t at, uint32_t value)
{
    // Native order: the buffer is read back on the machine that wrote it.
    PBase::fastMemcpy(bytes.data() + at, sizeof value, &value, sizeof value);
}

void writeResultWithoutData(CommandOutput& out)
{
    out.result(ZEKCLI_OUTPUT_FAIL);
    out.fail("Not enough memory for the result record");
}
