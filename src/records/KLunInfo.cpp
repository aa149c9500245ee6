#include "records/KLunInfo.h"

namespace {

const char* const kLunStateBitTexts[32] = {
    "Online",
    "Unused 1",
    "Unused 2",
    "Unused 3",
    "Unused 4",
    "Mapping Disabled",
    "Unused 6",
    "Storage Controller LUN",
    "Unused 8",
    "Unused 9",
    "Unused 10",
    "Mapped",
    "Data Management LUN",
    "Unused 13",
    "Local",
    "Remote",
    "Read-only",
    "Delete in Progress",
    "Storage Media SSD",
    "Cache Store",
    "Unused 20",
    "Cache Ready",
    "Mirror",
    "Meta-LUN",
    "TP Controller LUN",
    "TP BBRAM Extents",
    "Logical Cache Pool LUN",
    "External Cache Store LUN",
    "Non-Rotating Medium",
    "Unused 29",
    "Unused 30",
    "Unused 31",
};

const char* const kLunTypeTexts[13] = {
    "Unknown LUN Type", "Direct Access", "Sequential Access", "Printer",       "Processor",          "Worm)",     "DVD",
    "Scanner",          "Optical",       "Medium Changer",    "Communication", "SAN Controller LUN", "Enclosure",
};

// The controller bit is never named in the state line, though it counts in
// the hexadecimal value shown beside it.
constexpr uint32_t kNamedLunStateMask = 0xFEFFFFFF;

constexpr unsigned int kWwulnCapacity = 256;

} // namespace

KLunInfo::KLunInfo() : PBase()
{
    init();
}

KLunInfo::KLunInfo(const KLunInfo& other) : PBase()
{
    init();
    *this = other;
}

KLunInfo& KLunInfo::operator=(const KLunInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&bValid, scalarBlockSize(), &other.bValid, scalarBlockSize());
        ssdLunInfo = other.ssdLunInfo;
        cacheInfo = other.cacheInfo;
        ui32DefaultMaxRead = other.ui32DefaultMaxRead;
        ui32DefaultMinRead = other.ui32DefaultMinRead;
        ui32DefaultMaxWrite = other.ui32DefaultMaxWrite;
        ui32DefaultMinWrite = other.ui32DefaultMinWrite;
    }
    return *this;
}

KLunInfo::~KLunInfo()
{
    init();
}

unsigned int KLunInfo::scalarBlockSize() const
{
    return static_cast<unsigned int>(reinterpret_cast<const char*>(&ui32LunStateReserved + 1) -
                                     reinterpret_cast<const char*>(&bValid));
}

void KLunInfo::init()
{
    fastMemsetZero(&bValid, scalarBlockSize());
    ssdLunInfo.init();
    cacheInfo.init();
    ui32DefaultMaxRead = 0;
    ui32DefaultMinRead = 0;
    ui32DefaultMaxWrite = 0;
    ui32DefaultMinWrite = 0;
    initSerialization(&bValid, sizeof(KLunInfo));
}

// The default sizes stay out of the file on purpose: a LUN read back from
// a saved file has them at zero.
bool KLunInfo::serialize(bool write, FILE* file, std::string& error)
{
    return base_serialize(write, file, reinterpret_cast<char*>(&bValid), scalarBlockSize(), error) &&
        ssdLunInfo.serialize(write, file, error) && cacheInfo.serialize(write, file, error);
}

bool KLunInfo::isLunState(unsigned int bit) const
{
    return bit < 32 && isBitSet(ui32LunState, bit);
}

bool KLunInfo::isSanLun() const
{
    return m_eLunType != LUN_TYPE_UNKNOWN && !isLunState(LUN_STATE_STORAGE_MEDIA_SSD) &&
        !isLunState(LUN_STATE_TP_CONTROLLER_LUN);
}

std::string KLunInfo::lunStateToText(int /*unused*/, int bit)
{
    if (bit < 0 || bit >= 32)
        return "";
    return kLunStateBitTexts[bit];
}

std::string KLunInfo::lunTypeToText(KISA_LUN_TYPE type)
{
    if (type < LUN_TYPE_UNKNOWN || type > LUN_TYPE_ENCLOSURE)
        return "UNKNOWN LUN Type";
    return kLunTypeTexts[type];
}

std::string KLunInfo::lunCacheStateToText(KISA_CACHE_STATE state)
{
    switch (state) {
    case CACHE_STATE_UNKNOWN:
        return "    ******\n";
    case CACHE_STATE_NOT_CACHED:
        return "(Not Cached)";
    case CACHE_STATE_CACHED_LOCAL:
        return "LUN is cached on a local adapter";
    case CACHE_STATE_CACHED_PEER:
        return "LUN is cached on a peer adapter";
    default:
        return "    ****\n";
    }
}

std::string KLunInfo::lunMirrorTypeToText(KISA_MIRROR_STATE state)
{
    switch (state) {
    case MIRROR_STATE_UNKNOWN:
        return "    ******\n";
    case MIRROR_STATE_NOT_MIRRORED:
        return "(Not Mirrored)";
    case MIRROR_STATE_PRIMARY:
        return "Primary Mirror";
    case MIRROR_STATE_SECONDARY:
        return "Secondary Mirror";
    default:
        return "    ****\n";
    }
}

std::string KLunInfo::displayLunStateText() const
{
    const uint32_t named = ui32LunState & kNamedLunStateMask;
    std::string names;
    for (int bit = 0; bit < 32; ++bit) {
        if (!isBitSet(named, static_cast<unsigned int>(bit)))
            continue;
        if (!names.empty())
            names += ", ";
        names += lunStateToText(0, bit);
    }
    return "    LUN State  = 0x" + numberToHexText(ui32LunState) + " ( " + names + ")";
}

// Bounded by the array: a damaged length or a missing terminator must not
// read beyond the record.
std::string KLunInfo::wwulnText() const
{
    if (eWwulnCodeSet == WWULN_CODE_SET_BINARY) {
        const unsigned int length = ui32WwulnLength < kWwulnCapacity ? ui32WwulnLength : kWwulnCapacity;
        return "\n    WWULN = " + wwulnToText(ui8Wwuln, static_cast<int>(length), WWULN_CODE_SET_BINARY) + "\n";
    }
    if (eWwulnCodeSet == WWULN_CODE_SET_TEXT) {
        std::string text = "\n    WWULN = ";
        if (ui8Wwuln[0] != 0) {
            const char* name = reinterpret_cast<const char*>(ui8Wwuln);
            text += "\"" + charFieldToText(name, kWwulnCapacity) + "\"\n";
        }
        return text;
    }
    return "";
}

std::string KLunInfo::displayText() const
{
    if (!bValid)
        return "********\n";
    if (!isOnline())
        return "    ( Offline )\n";

    std::string text;
    if (isSanLun()) {
        if (bCacheSynchronizing)
            text += "    " + std::string(" (synchronizing)\n");
    } else if (m_eMirrorState != MIRROR_STATE_NOT_MIRRORED) {
        text += lunMirrorTypeToText(m_eMirrorState) + "\n";
    }
    text += displayLunStateText();
    text += "\n    LUN Type   = " + lunTypeToText(m_eLunType);
    text += "\n    Vendor ID      = " + charFieldToText(szVendorId);
    text += "\n    Product ID     = " + charFieldToText(szProductId);
    text += "\n    Revision Level = " + charFieldToText(szRevisionLevel);
    text += "\n    Serial Number  = ";
    for (uint8_t byte : ui8SerialNumber)
        text += byteToHexText(byte);
    if (ui32Page80SerialLength != 0)
        text += "\n    Page 0x80 serial number = " + charFieldToText(szPage80Serial);
    text += wwulnText();

    if (isLunState(LUN_STATE_STORAGE_MEDIA_SSD))
        return text + ssdLunInfo.displayText();

    if (text.back() != '\n')
        text += "\n";
    text += "    Size  = " + longlongToMByteText(ui64LunSizeBytes) + ", (" + ui64NumberToText(ui64LunSizeBytes / 512) +
        " blocks)\n";
    return text;
}
