#include "commands/lun/LunCommandSupport.h"

#include <cstdlib>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "api/MHbaReturnBuffer.h"
#include "commands/CommandPattern.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterPath.h"
#include "records/PIpAddress.h"
#include "records/PUniqueID.h"

namespace {

constexpr uint32_t kHeaderBytes = 8;
constexpr size_t kCountOffset = 4;
constexpr unsigned kGigabyteShift = 30;

} // namespace

CountedRecordBuffer::CountedRecordBuffer()
{
    appendInt32(kHeaderBytes);
    appendInt32(0);
}

void CountedRecordBuffer::appendImage(void const* image, unsigned int imageSize)
{
    appendInt32(imageSize + 4);
    unsigned char const* const first = static_cast<unsigned char const*>(image);
    bytes.insert(bytes.end(), first, first + imageSize);
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

int writeCountedBuffer(TokenCmd const& cmd, int code, CountedRecordBuffer const& buffer, std::string& err)
{
    if (!cmd.outResult(static_cast<e_MHBA_RETURN>(code), buffer.data(), buffer.size(), err))
        return ZEKCLI_OUTPUT_FAIL;
    return 0;
}

int writeResultWithoutData(TokenCmd const& cmd, std::string& err)
{
    cmd.outResult(static_cast<e_MHBA_RETURN>(ZEKCLI_OUTPUT_FAIL), nullptr, 0, err);
    return ZEKCLI_OUTPUT_FAIL;
}

void LunOutcomeTally::record(int code)
{
    if (code == 0) {
        anySucceeded = true;
        return;
    }
    anyFailed = true;
    lastFailure = code;
}

int LunOutcomeTally::resultCode() const
{
    if (!anyFailed)
        return 0;
    return anySucceeded ? MHBA_S_PARTIAL_SUCCESS : lastFailure;
}

int scanAdapterGroupLuns(TokenCmd& cmd, PIpAddress& agent, std::string& err)
{
    if (!readAgentAddress(cmd, agent, err))
        return MHBA_E_BAD_AGENT_ADDRESS;
    g_pHbaMgmtApi->clearAdapters();
    g_pHbaMgmtApi->clearClusters();
    uint32_t count = 0;
    if (int const rc = g_pHbaMgmtApi->scanAdapters(agent, &count))
        return rc;
    std::vector<KIsaAdapterPath> paths;
    for (HIsaAdapter* adapter : g_pHbaMgmtApi->getAdapters()->items)
        paths.push_back(*adapter->getAdapterPath());
    g_pHbaMgmtApi->clearAdapterGroupLuns();
    return g_pHbaMgmtApi->scanAdapterGroupLuns(paths, err);
}

int findAdapterAndLuns(TokenCmd& cmd, AddressedAdapter& addressed, bool oneLunRequired, std::vector<PLunID>& luns,
                       std::string& err)
{
    if (int const rc = findAddressedAdapter(cmd, addressed, err))
        return rc;
    err.clear();
    if (!cmd.getLunIdFromCommandLine(addressed.adapter, false, oneLunRequired, luns, err))
        return ZEKCLI_PARSE_FAIL;
    return 0;
}

HIsaAdapter* findAdapterById(unsigned long long id)
{
    for (HIsaAdapter* adapter : g_pHbaMgmtApi->getAdapters()->items)
        if (adapter->getAdapterPath()->isaHbaId() == id)
            return adapter;
    return nullptr;
}

HLun* findLunGatheringIfNeeded(HIsaAdapter* adapter, PLunID const& lun)
{
    if (HLun* const held = adapter->getLuns()->find(lun))
        return held;
    MHbaReturnBuffer firstFailure;
    HTarget* target = adapter->getTargets()->find(lun.targetID());
    if (!target) {
        // Partial success still brings in the targets that answered.
        int const rc = adapter->getTargetsAndInitiators(&firstFailure);
        if (rc != 0 && rc != MHBA_S_PARTIAL_SUCCESS)
            return nullptr;
        target = adapter->getTargets()->find(lun.targetID());
    }
    if (!target || adapter->getLunsForSpecificTarget(target, &firstFailure) != 0)
        return nullptr;
    return adapter->getLuns()->find(lun);
}

long long decimalValue(std::string const& text)
{
    // strtoll clamps what does not fit, so a huge figure stays huge.
    return strtoll(text.c_str(), nullptr, 10);
}

unsigned long long gigabytesToBytes(long long gigabytes)
{
    unsigned long long const whole = static_cast<unsigned long long>(gigabytes);
    if (whole > (~0ull >> kGigabyteShift))
        return ~0ull;
    return whole << kGigabyteShift;
}

int checkLunTargetKeywords(TokenCmd& cmd, std::string& err)
{
    // Only their presence in the command's table matters here.
    if (!cmd.findModifier(ModifierId::MODIFIER_LUN_NUMBER, err) ||
        !cmd.findModifier(ModifierId::MODIFIER_VPGINDEX, err))
        return ZEKCLI_PARSE_FAIL;
    PTargetID target;
    bool given = false;
    if (!cmd.getTargetIdFromCommandLineModifiers(false, target, given, err))
        return ZEKCLI_PARSE_FAIL;
    if (target.isEmpty()) {
        err = "Target not found";
        return MHBA_E_OBJECT_NOT_FOUND;
    }
    return 0;
}
