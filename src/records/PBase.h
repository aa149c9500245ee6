// Root of every record that crosses the management-library boundary, and
// home of the text helpers that all records share.
//
// Records are exchanged with the library by memory image, so the layout of
// this class is fixed: the virtual-table pointer, one 32-bit word that is
// never touched here, then the two 32-bit fields that describe the saved
// area. Fields of derived classes follow directly (they may share the tail
// padding of this class, as the x86-64 ABI allows).
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

class PBase {
public:
    // All enums that travel inside records are 32 bits wide; the fixed
    // underlying type also makes any 32-bit value a valid enum value, which
    // the "other" rows of the text tables rely on.
    enum FC_LINK_RATE : int32_t {
        FC_LINK_RATE_AUTO = 0,
        FC_LINK_RATE_2GB = 1,
        FC_LINK_RATE_4GB = 2,
        FC_LINK_RATE_8GB = 3,
        FC_LINK_RATE_10GB = 4,
        FC_LINK_RATE_16GB = 5,
    };

    enum ISCSI_LINK_RATE : int32_t {
        ISCSI_LINK_RATE_UNKNOWN = 0,
        ISCSI_LINK_RATE_AUTO = 1,
        ISCSI_LINK_RATE_10MB = 2,
        ISCSI_LINK_RATE_100MB = 3,
        ISCSI_LINK_RATE_1GB = 4,
        ISCSI_LINK_RATE_10GB = 5,
    };

    enum LINK_STATUS : int32_t {
        LINK_DOWN = 0,
        LINK_UP = 1,
    };

    enum PORT_STATUS : int32_t {
        PORT_DISABLED = 0,
        PORT_ENABLED = 1,
    };

    enum PROTOCOL_TYPE : int32_t {
        PROTOCOL_UNINITIALIZED = 0,
        PROTOCOL_FIBRE_CHANNEL = 1,
        PROTOCOL_ISCSI = 2,
        PROTOCOL_DATA_MIGRATION_FIBRE_CHANNEL = 3,
        PROTOCOL_DATA_MIGRATION_ISCSI = 4,
    };

    enum LUN_ACCESS_TYPE : int32_t {
        LUN_ACCESS_UNINITIALIZED = 0,
        LUN_ACCESS_READ_ONLY = 1,
        LUN_ACCESS_READ_WRITE = 2,
        LUN_ACCESS_EXCLUSIVE_READ_WRITE = 3,
    };

    enum LUN_NAME_TYPE : int32_t {
        LUN_NAME_UNKNOWN = 0,
        LUN_NAME_WWULN = 1,
        LUN_NAME_SERIAL_NUMBER = 2,
        LUN_NAME_T10_DESIGNATOR = 3,
        LUN_NAME_EUI_DESIGNATOR = 4,
        LUN_NAME_NAA_DESIGNATOR = 5,
    };

    enum LOG_ENTRY_SEVERITY_TYPE : int32_t {
        LOG_SEVERITY_UNKNOWN = 0,
        LOG_SEVERITY_ERROR = 1,
        LOG_SEVERITY_WARNING = 2,
        LOG_SEVERITY_INFO = 3,
        LOG_SEVERITY_TRACE = 4,
    };

    enum VPGROUP_INDEX : int32_t {
        VPGROUP_NONE = 0,
        VPGROUP_1 = 1,
        VPGROUP_2 = 2,
        VPGROUP_3 = 3,
        VPGROUP_4 = 4,
        VPGROUP_UNKNOWN = 5,
    };

    enum FCZONESET_STATUS_TYPE : int32_t {
        FCZONESET_STATUS_UNKNOWN = 0,
        FCZONESET_STATUS_VALID = 1,
        FCZONESET_STATUS_LINK_DOWN = 2,
        FCZONESET_STATUS_NO_SWITCH = 3,
        FCZONESET_STATUS_NO_ACTIVE_ZONESET = 4,
        FCZONESET_STATUS_NO_MATCHING_ZONE = 5,
        FCZONESET_STATUS_TIMEOUT = 6,
        FCZONESET_STATUS_RETRIEVE_FAILED = 7,
    };

    enum OS_TYPE : int32_t {
        OS_TYPE_UNKNOWN = 0,
        OS_TYPE_WINDOWS_2003 = 1,
        OS_TYPE_LINUX = 2,
        OS_TYPE_LINUX_2 = 3,
        OS_TYPE_HPUX = 4,
        OS_TYPE_AIX = 5,
        OS_TYPE_NETWARE = 6,
        OS_TYPE_SOLARIS = 7,
        OS_TYPE_MACINTOSH = 8,
        OS_TYPE_VMWARE = 9,
        OS_TYPE_OPENVMS = 10,
        OS_TYPE_OTHER = 11,
        OS_TYPE_WINDOWS_2008 = 12,
        OS_TYPE_WINDOWS_2012 = 13,
    };

    enum TCPWINDOWSIZE_TYPE : int32_t {
        TCPWINDOWSIZE_8192 = 8192,
        TCPWINDOWSIZE_16384 = 16384,
        TCPWINDOWSIZE_32768 = 32768,
        TCPWINDOWSIZE_65536 = 65536,
        TCPWINDOWSIZE_131072 = 131072,
        TCPWINDOWSIZE_262144 = 262144,
        TCPWINDOWSIZE_524288 = 524288,
        TCPWINDOWSIZE_1048576 = 1048576,
        TCPWINDOWSIZE_2097152 = 2097152,
        TCPWINDOWSIZE_4194304 = 4194304,
        TCPWINDOWSIZE_8388608 = 8388608,
        TCPWINDOWSIZE_16777216 = 16777216,
    };

    // Values other than 1 and 2 are treated as binary.
    enum WWULN_CODE_SET_TYPE : int32_t {
        WWULN_CODE_SET_NONE = 0,
        WWULN_CODE_SET_BINARY = 1,
        WWULN_CODE_SET_TEXT = 2,
    };

    PBase();
    PBase(const PBase& other);
    PBase& operator=(const PBase& other);

    // Virtual slots in this order are part of the library contract.
    virtual ~PBase();
    virtual void init() = 0;
    virtual void initSerialization(void* firstField, unsigned int objectSize);
    virtual bool serialize(bool write, FILE* file, std::string& error);
    virtual std::string displayText() const = 0;

    unsigned int getSerialOffset() const { return serialOffset; }
    unsigned int getSerialSize() const { return serialSize; }

    // Copies the saved area out of the image of a record of the same class
    // (for example another object, or bytes read from a file). Only the
    // area is touched, so virtual-table pointers stay this process's own.
    void copySavedArea(const void* objectImage);

    // ---- saving -------------------------------------------------------------
    static bool base_serialize(bool write, FILE* file, char* buffer, unsigned int length, std::string& error);

    // ---- memory helpers (size arguments beside the count are documentary) ---
    static void fastMemcpy(void* dst, unsigned long dstSize, const void* src, unsigned long count);
    static void fastMemsetZero(void* dst, unsigned long count);
    static bool fastIsEqualMemcmp(const void* a, unsigned long aSize, const void* b, unsigned long count);
    static bool fastIsEqualStringCompare(const std::string& a, const std::string& b, bool caseSensitive);

    // ---- small predicates ---------------------------------------------------
    static bool isBitSet(unsigned int value, unsigned int bit);
    static bool isValidTcpWindowSize(TCPWINDOWSIZE_TYPE size);
    static VPGROUP_INDEX convertIntToVpIndex(int index);

    // ---- numbers and words --------------------------------------------------
    static std::string numberToText(int value);
    static std::string numberToHexText(unsigned int value);
    static std::string i64NumberToText(long long value);
    static std::string ui64NumberToText(unsigned long long value);
    static std::string ui64NumberToHexText(unsigned long long value);
    static std::string byteToHexText(unsigned char value);
    static std::string floatToText(float value);
    static std::string yesOrNoToText(bool value);
    static std::string upOrDownToText(bool value);
    static std::string onOrOffToText(bool value);
    static std::string enableToText(bool value);

    // ---- names and identifiers ----------------------------------------------
    static std::string wwnameToText(const unsigned char* name);
    static std::string wwnameToText_single_bytes(const unsigned char* name);
    static std::string portIdToText(const unsigned char* id);
    static std::string portIdToText(unsigned char* id, unsigned int length);
    static std::string uCharPtrToJavaString(unsigned char* text);
    // A fixed character field as text: up to its zero, never past its end.
    static std::string charFieldToText(const char* field, unsigned long size);
    template <size_t N>
    static std::string charFieldToText(const char (&field)[N])
    {
        return charFieldToText(field, N);
    }
    // Fills a fixed character field, cut to keep its terminating zero.
    static void textToCharField(char* field, unsigned long size, const std::string& text);
    static std::string wwulnToText(const unsigned char* data, int length, WWULN_CODE_SET_TYPE codeSet);
    static bool textToWwname(unsigned int& count, unsigned char* out, unsigned long outSize, const std::string& text);

    // ---- columns and quoting ------------------------------------------------
    static std::string addQuotesIfInternalSpace(const std::string& text);
    static std::string sizeTextToColumn_Left(unsigned int width, const std::string& text);
    static std::string sizeTextToColumn(unsigned int width, const std::string& text);

    // ---- sizes and times ----------------------------------------------------
    static std::string convertToMByteText(unsigned long long value);
    static std::string longlongToMByteText(unsigned long long value);
    static std::string displayElapsedTime(unsigned int tenthsOfMs);
    static std::string displayMemory(const void* memory, unsigned int length);

    // ---- enum tables --------------------------------------------------------
    static std::string fcLinkRateToText(FC_LINK_RATE rate);
    static std::string iscsiLinkRateToText(ISCSI_LINK_RATE rate);
    static std::string linkStatusToText(LINK_STATUS status);
    static std::string portStatusToText(PORT_STATUS status);
    static std::string protocolTypeToText(PROTOCOL_TYPE type);
    static std::string lunAccessTypeToText(LUN_ACCESS_TYPE type);
    static std::string lunNameTypeToText(LUN_NAME_TYPE type);
    static std::string severityTypeToText(LOG_ENTRY_SEVERITY_TYPE severity);
    static std::string vpGroupIndexToText(VPGROUP_INDEX index);
    static std::string fcZoneStatusToText(FCZONESET_STATUS_TYPE status);
    static std::string osTypeToText(OS_TYPE type);
    static std::string tcpWindowSizeToText(TCPWINDOWSIZE_TYPE size);

protected:
    // Kept for the library; this side neither reads nor writes it after
    // construction.
    uint32_t untouchedWord;
    // Offset from the start of the object to the first saved byte, 0 when
    // nothing is saved; and the number of saved bytes.
    uint32_t serialOffset;
    uint32_t serialSize;
};

static_assert(sizeof(PBase) == 24, "PBase image: vptr and three 32-bit words");

// Pins where a field sits in a record image. Records are polymorphic and so
// not standard-layout, but the compiler places them by the platform ABI and
// the library reads exactly that image. Use it where the field is
// accessible (inside a member function for non-public fields).
#define ZEK_ASSERT_FIELD_OFFSET(Class, field, offset)                                                                  \
    _Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Winvalid-offsetof\"") static_assert(             \
        offsetof(Class, field) == (offset), #Class "::" #field " offset");                                             \
    _Pragma("GCC diagnostic pop")
