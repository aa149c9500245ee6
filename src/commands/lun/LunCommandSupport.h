// What the LUN and reservation commands share: the counted result buffer of
// their list outputs, the tally of LUNs that worked and failed, the scan of
// every reachable adapter's LUNs, and the reading of a LUN number.
#pragma once

#include <cstdint>
#include <new>
#include <string>
#include <vector>

#include "api/MhbaReturn.h"

struct AddressedAdapter;
class HIsaAdapter;
class HLun;
class PLunID;
class PIpAddress;
class TokenCmd;

// A result buffer of record images: an 8-byte header (its own size, then the
// count), then per record a 4-byte size that includes itself and the image.
class CountedRecordBuffer {
public:
    // The header alone, with a count of 0.
    CountedRecordBuffer();

    template <typename Record>
    void appendAll(std::vector<Record> const& records)
    {
        for (Record const& record : records)
            appendImage(&record, sizeof(Record));
    }

    void const* data() const { return bytes.data(); }
    unsigned long size() const { return bytes.size(); }

private:
    void appendImage(void const* image, unsigned int imageSize);
    void appendInt32(uint32_t value);
    void storeInt32(size_t at, uint32_t value);

    std::vector<unsigned char> bytes;
    uint32_t count = 0;
};

int writeCountedBuffer(TokenCmd const& cmd, int code, CountedRecordBuffer const& buffer, std::string& err);
// The result record of a buffer that could not be built: code 55, no data.
int writeResultWithoutData(TokenCmd const& cmd, std::string& err);

// Writes the records as a counted buffer to the result channel. A buffer
// that cannot be allocated makes the result code 55 with no data. Returns
// 0, or 55 when the result could not be written.
template <typename Record>
int writeCountedResult(TokenCmd const& cmd, int code, std::vector<Record> const& records, std::string& err)
{
    try {
        CountedRecordBuffer buffer;
        buffer.appendAll(records);
        return writeCountedBuffer(cmd, code, buffer, err);
    } catch (std::bad_alloc const&) {
        return writeResultWithoutData(cmd, err);
    }
}

// How a walk over several LUNs went, for the code of its result record.
class LunOutcomeTally {
public:
    void record(int code);
    // 0 when nothing failed; 2 when some failed and some worked; otherwise
    // the code of the last failure.
    int resultCode() const;

private:
    bool anySucceeded = false;
    bool anyFailed = false;
    int lastFailure = 0;
};

// Forgets earlier scans, scans the adapters of this host or of the -agent
// host, then gathers the LUNs they all see, one record per LUN, into the
// library's adapter group list. `agent` is the address used. Returns 0, 1105
// for an unusable -agent, or the library's code.
int scanAdapterGroupLuns(TokenCmd& cmd, PIpAddress& agent, std::string& err);

// Selects the adapter (-zek) and resolves the LUN keywords on it, as every
// command addressed to LUNs of one adapter begins. Returns 0, the
// selection's code, or 52 when the keywords do not name what is needed; the
// resolution may leave words in `err` for the caller to show.
int findAdapterAndLuns(TokenCmd& cmd, AddressedAdapter& addressed, bool oneLunRequired, std::vector<PLunID>& luns,
                       std::string& err);

// The adapter the library holds with this identifier, or null.
HIsaAdapter* findAdapterById(unsigned long long id);

// The adapter's object for this LUN path. The library fills its LUN list
// only when a target's LUNs are gathered, which a LUN named in full or taken
// from the adapter group list has not caused yet; so on a miss the path's
// target is gathered (and the adapter's targets first, when it does not
// know the target) and the list is searched again. Null when the adapter
// still holds no such LUN.
HLun* findLunGatheringIfNeeded(HIsaAdapter* adapter, PLunID const& lun);

// The figure a user typed, read the way the size keywords are: base ten,
// anything unreadable as 0, clamped to the range of a signed 64-bit value.
long long decimalValue(std::string const& text);

// Mirror types as the library takes them.
constexpr int kMirrorTypeNone = 1;
constexpr int kMirrorTypeMirror = 2;

// Sizes are typed in gigabytes of 2 to the 30 bytes and travel in bytes. A
// figure too large for 64 bits stays the largest byte count rather than
// wrapping round to a small one, so the adapter refuses it.
unsigned long long gigabytesToBytes(long long gigabytes);

// Reads the target and number keywords the way the LUN changing commands
// check them before acting on their LUN. Returns 0, 52 for a keyword the
// command lacks or an unreadable target, or 1206 when no target results.
int checkLunTargetKeywords(TokenCmd& cmd, std::string& err);
