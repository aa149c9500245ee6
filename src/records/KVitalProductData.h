// The vital product data of an adapter, with the path by which it was read.
#pragma once

#include <cstdio>
#include <string>

#include "records/KIsaAdapterPath.h"
#include "records/PBase.h"

class KVitalProductData : public PBase {
public:
    static constexpr unsigned int SHORT_FIELD_SIZE = 33;
    static constexpr unsigned int PART_NUMBER_SIZE = 257;
    static constexpr unsigned int LONG_FIELD_SIZE = 256;
    // The text fields are saved as one block of this size, from the serial
    // number up to the adapter path.
    static constexpr unsigned int TEXT_BLOCK_SIZE = 1196;

    KVitalProductData();
    KVitalProductData(const KVitalProductData& other);
    KVitalProductData& operator=(const KVitalProductData& other);
    ~KVitalProductData() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;

    char serialNumber[SHORT_FIELD_SIZE];
    char partNumber[PART_NUMBER_SIZE];
    char firmwareVersion[SHORT_FIELD_SIZE];
    char efiDriverVersion[SHORT_FIELD_SIZE];
    char biosVersion[SHORT_FIELD_SIZE];
    char fcodeVersion[SHORT_FIELD_SIZE];
    char productIdentifier[LONG_FIELD_SIZE];
    char miscInformation[LONG_FIELD_SIZE];
    char manufacturingId[LONG_FIELD_SIZE];
    KIsaAdapterPath adapterPath;
};

static_assert(sizeof(KVitalProductData) == 2952, "vital product data image");
