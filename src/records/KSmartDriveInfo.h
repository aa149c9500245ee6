// SMART data of one drive: the overall verdict and up to 32 vendor
// attributes with their thresholds.
#pragma once

#include "records/PBase.h"

class KSmartDriveAttribute : public PBase {
public:
    // Which listings show the attribute.
    enum SMART_DISPLAY_TYPE : int32_t {
        SMART_DISPLAY_NONE = 0,
        SMART_DISPLAY_ALWAYS = 1,
        SMART_DISPLAY_VERBOSE = 2,
    };

    static constexpr unsigned int TEXT_SIZE = 64;

    KSmartDriveAttribute();
    KSmartDriveAttribute(const KSmartDriveAttribute& other);
    KSmartDriveAttribute& operator=(const KSmartDriveAttribute& other);
    ~KSmartDriveAttribute() override;

    void init() override;
    std::string displayText() const override;
    // One table row, appended to `before` on a new line.
    std::string displayText(const std::string& before) const;

    std::string smartAttributeNameToText() const;
    std::string smartRawDataToText() const;

    int32_t attributeId;
    int32_t value;
    int32_t worst;
    int32_t threshold;
    char name[TEXT_SIZE];
    char rawValue[TEXT_SIZE];
    int32_t reserved;
    SMART_DISPLAY_TYPE displayType;
};

static_assert(sizeof(KSmartDriveAttribute) == 176, "KSmartDriveAttribute image");

class KSmartDriveInfo : public PBase {
public:
    enum SMART_STATUS_TYPE : int32_t {
        SMART_STATUS_PASS = 0,
        SMART_STATUS_FAIL = 1,
        SMART_STATUS_UNKNOWN = 2,
    };

    static constexpr unsigned int MAX_ATTRIBUTES = 32;

    KSmartDriveInfo();
    KSmartDriveInfo(const KSmartDriveInfo& other);
    KSmartDriveInfo& operator=(const KSmartDriveInfo& other);
    ~KSmartDriveInfo() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;
    // `prefix` is accepted for the callers' sake and changes nothing.
    std::string displayText(KSmartDriveAttribute::SMART_DISPLAY_TYPE type, const std::string& prefix = "    ") const;

    unsigned int vecSize() const { return attributeCount; }
    // Null for an index outside the attribute array.
    KSmartDriveAttribute* vecAt(unsigned int index);
    const KSmartDriveAttribute* vecAt(unsigned int index) const;

    static std::string smartStatusToText(SMART_STATUS_TYPE status);

    int32_t isSmartDataValid;
    SMART_STATUS_TYPE smartStatus;
    uint32_t attributeCount;
    KSmartDriveAttribute attributes[MAX_ATTRIBUTES];

private:
    // The three words before the attributes.
    static constexpr unsigned int HEADER_SIZE = 12;
};

static_assert(sizeof(KSmartDriveInfo) == 5664, "KSmartDriveInfo image");
