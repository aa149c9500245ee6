// A network address in every form the management library and the command
// line need. The library fills it (it alone turns texts into addresses); its
// memory image is the same on both sides of the boundary.
#pragma once

#include <cstdint>
#include <string>

#include "records/PBase.h"

class PIpAddress : public PBase {
public:
    // 1 and 2 are the short forms, 3 and 4 the long ones; 0 means not set.
    enum IPV_TYPE : int32_t {
        IPV_NOT_SET = 0,
        IPV_SHORT_1 = 1,
        IPV_SHORT_2 = 2,
        IPV_LONG_1 = 3,
        IPV_LONG_2 = 4,
    };

    static constexpr unsigned int NUMERIC_TEXT_SIZE = 40;
    static constexpr unsigned int LONG_TEXT_SIZE = 511;
    static constexpr unsigned int DATA_SIZE = 28;
    static constexpr unsigned int SUBNET_DATA_SIZE = 16;
    // A short-form address compares on this many bytes only.
    static constexpr unsigned int SHORT_COMPARE_SIZE = 16;

    PIpAddress();
    PIpAddress(const PIpAddress& other);
    PIpAddress& operator=(const PIpAddress& other);
    ~PIpAddress() override;

    void init() override;
    std::string displayText() const override;

    bool operator==(const PIpAddress& other) const;
    bool operator!=(const PIpAddress& other) const;

    IPV_TYPE getType() const { return type; }
    void setType(IPV_TYPE value) { type = value; }
    const unsigned char* getData() const { return data; }
    const unsigned char* getSubnetData() const { return subnetData; }
    bool setData(const unsigned char* bytes, unsigned int length);
    bool setSubnetData(const unsigned char* bytes, unsigned int length);

    const char* getNumericText() const { return numericText; }
    // Gives the address text, not the subnet: callers have always read it so.
    const char* getNumericSubnetText() const { return numericText; }
    const char* getLookupText() const { return lookupText; }
    const char* getInitText() const { return initText; }
    const char* getSubnetInitText() const { return subnetInitText; }
    void setNumericText(const char* text, const char* subnet);
    void setInitText(const char* text, const char* subnet);
    void setLookupText(const char* text);

private:
    IPV_TYPE type;
    char numericText[NUMERIC_TEXT_SIZE];
    char numericSubnetText[NUMERIC_TEXT_SIZE];
    char lookupText[LONG_TEXT_SIZE];
    char initText[LONG_TEXT_SIZE];
    char subnetInitText[LONG_TEXT_SIZE];
    unsigned char data[DATA_SIZE];
    unsigned char subnetData[SUBNET_DATA_SIZE];
};

static_assert(sizeof(PIpAddress) == 1688, "address image");
