#include "RecordLayout.h"

#include <gtest/gtest.h>

#include "PayloadDecoder.h"
#include "records/KLogEntry.h"
#include "records/KLunInfo.h"
#include "records/KPoolInfo.h"
#include "records/PUniqueID.h"
#include "records/RecordImage.h"

namespace {

DecodedValue const& member(DecodedValue const& object, std::string const& name)
{
    for (auto const& [key, value] : object.members)
        if (key == name)
            return value;
    ADD_FAILURE() << "no member " << name;
    static DecodedValue const none;
    return none;
}

size_t offsetOf(RecordLayout const& layout, std::string const& field)
{
    for (FieldLayout const& f : layout.fields)
        if (field == f.name)
            return f.offset;
    ADD_FAILURE() << "no field " << field;
    return 0;
}

TEST(RecordLayout, FieldsLieInsideTheImageInImageOrder)
{
    for (RecordLayout const* layout : allLayouts()) {
        size_t end = 0;
        for (FieldLayout const& field : layout->fields) {
            EXPECT_GE(field.offset, end) << layout->name << "::" << field.name;
            EXPECT_LE(field.offset + field.size, layout->size) << layout->name << "::" << field.name;
            end = field.offset + field.size;
        }
        EXPECT_TRUE(!layout->fields.empty() || layout->decodeWhole) << layout->name;
    }
}

TEST(RecordLayout, OffsetsAreThoseOfTheRecordClass)
{
    RecordLayout const* const lun = layoutNamed("KLunInfo");
    ASSERT_NE(nullptr, lun);
    EXPECT_EQ(1560u, lun->size);
    EXPECT_EQ(20u, offsetOf(*lun, "bValid"));
    EXPECT_EQ(620u, offsetOf(*lun, "ui32LunStateReserved"));
    EXPECT_EQ(624u, offsetOf(*lun, "ssdLunInfo"));
    EXPECT_EQ(808u, offsetOf(*lun, "cacheInfo"));
    EXPECT_EQ(nullptr, layoutNamed("KNoSuchRecord"));
}

TEST(RecordLayout, RecordImageDecodesToItsFieldValues)
{
    KPoolInfo pool;
    pool.totalSsdStorage = 400ull << 30;
    pool.configuredForCachePool = 300ull << 30;
    pool.usedForCachePool = 12345;
    DecodedValue const decoded = decodeRecord(*layoutNamed("KPoolInfo"), recordImage(pool).data());
    EXPECT_EQ(std::to_string(400ull << 30), member(decoded, "totalSsdStorage").scalar);
    EXPECT_EQ(std::to_string(300ull << 30), member(decoded, "configuredForCachePool").scalar);
    EXPECT_EQ("12345", member(decoded, "usedForCachePool").scalar);
}

TEST(RecordLayout, CharFieldsStopAtTheirEndAndNestedRecordsAreObjects)
{
    KLogEntry entry;
    PBase::textToCharField(entry.source, sizeof entry.source, "fw");
    std::memset(entry.message, 'x', sizeof entry.message); // no terminating zero at all
    entry.entryNumber = 7;
    entry.time.initFromPosixTime(1795000000);
    DecodedValue const decoded = decodeRecord(*layoutNamed("KLogEntry"), recordImage(entry).data());
    EXPECT_EQ("fw", member(decoded, "source").scalar);
    EXPECT_EQ(std::string(sizeof entry.message, 'x'), member(decoded, "message").scalar);
    EXPECT_EQ("7", member(decoded, "entryNumber").scalar);
    EXPECT_EQ("1795000000", member(member(decoded, "time"), "posixTime").scalar);
}

TEST(PayloadDecoder, CountedBlockOfRecords)
{
    std::vector<unsigned char> payload{8, 0, 0, 0, 2, 0, 0, 0};
    for (int i = 0; i < 2; ++i) {
        KPoolInfo pool;
        pool.usedForCachePool = static_cast<uint64_t>(i + 1);
        std::vector<unsigned char> const image = recordImage(pool);
        uint32_t const size = static_cast<uint32_t>(image.size() + 4);
        payload.insert(payload.end(), reinterpret_cast<unsigned char const*>(&size),
                       reinterpret_cast<unsigned char const*>(&size) + 4);
        payload.insert(payload.end(), image.begin(), image.end());
    }
    DecodedValue const decoded = decodePayload("pool", payload);
    EXPECT_EQ("counted", member(decoded, "framing").scalar);
    ASSERT_EQ(2u, member(decoded, "records").items.size());
    DecodedValue const& second = member(decoded, "records").items[1];
    EXPECT_EQ("KPoolInfo", member(second, "record").scalar);
    EXPECT_EQ("2", member(member(second, "fields"), "usedForCachePool").scalar);
}

TEST(PayloadDecoder, ACountedBlockThatDoesNotAddUpIsNoCountedBlock)
{
    std::vector<unsigned char> payload{8, 0, 0, 0, 1, 0, 0, 0, 200, 0, 0, 0, 1, 2, 3};
    DecodedValue const decoded = decodePayload("pool", payload);
    EXPECT_EQ("single", member(decoded, "framing").scalar);
    DecodedValue const& record = member(decoded, "records").items.at(0);
    EXPECT_EQ("unknown", member(record, "record").scalar);
    EXPECT_EQ("0800000001000000c8000000010203", member(record, "bytes").scalar);
}

TEST(PayloadDecoder, TheItemDecidesBetweenRecordsOfOneSize)
{
    PLunID lun;
    lun.initLunIdOnFcTargetFromString("5006-0160-39A0-1122", 3, PBase::convertIntToVpIndex(1));
    std::vector<unsigned char> const image = recordImage(lun);
    DecodedValue const asLun = decodePayload("lun", image);
    DecodedValue const& record = member(asLun, "records").items.at(0);
    EXPECT_EQ("PLunID", member(record, "record").scalar);
    EXPECT_EQ(lun.displayText(), member(member(record, "fields"), "text").scalar);
    // Without a telling item, equal sizes leave the type open.
    DecodedValue const open = decodePayload("cli", image);
    DecodedValue const& unknown = member(open, "records").items.at(0);
    EXPECT_EQ("unknown", member(unknown, "record").scalar);
    EXPECT_EQ(2u, member(unknown, "candidates").items.size());
}

} // namespace
