#include "records/KLunReservationInfo.h"

#include <gtest/gtest.h>

TEST(KLunReservationInfo, UnknownAndNoneShowTheSameLine)
{
    KLunReservationInfo info;
    info.ui8ReservationKey[0] = 0x55;
    info.eReservationType = KLunReservationInfo::RESERVATION_TYPE_UNKNOWN;
    const std::string unknown = info.displayText();
    info.eReservationType = KLunReservationInfo::RESERVATION_NONE;
    EXPECT_EQ(info.displayText(), unknown);
    EXPECT_EQ(unknown, "    Type:   No reservation held\n");
}

TEST(KLunReservationInfo, HeldReservationShowsTypeAndKey)
{
    KLunReservationInfo info;
    info.eReservationType = KLunReservationInfo::RESERVATION_WRITE_EXCLUSIVE_REGISTRANTS_ONLY;
    const uint8_t key[8] = {0x00, 0x01, 0x0A, 0xFF, 0x10, 0x20, 0x30, 0x40};
    for (int i = 0; i < 8; ++i)
        info.ui8ReservationKey[i] = key[i];
    EXPECT_EQ(info.displayText(), "    Type:  Write Exclusive, Registrants Only\n    Key:  0x00010AFF10203040\n");
}

TEST(KLunReservationInfo, UnlistedTypeShowsTheUpperCaseUnknownText)
{
    KLunReservationInfo info;
    info.eReservationType = static_cast<KLunReservationInfo::KISA_RESERVATION_TYPE>(9);
    EXPECT_EQ(info.displayText(), "    Type:  ***Reservation Type UNKNOWN***\n    Key:  0x0000000000000000\n");
    info.eReservationType = static_cast<KLunReservationInfo::KISA_RESERVATION_TYPE>(-3);
    EXPECT_EQ(info.displayText(), "    Type:   No reservation held\n");
}

TEST(KLunReservationInfo, TypeTexts)
{
    using T = KLunReservationInfo::KISA_RESERVATION_TYPE;
    EXPECT_EQ(KLunReservationInfo::reservationTypeToText(T(0)), "***Reservation Type Unknown***");
    EXPECT_EQ(KLunReservationInfo::reservationTypeToText(T(1)), "No Reservation Held");
    EXPECT_EQ(KLunReservationInfo::reservationTypeToText(T(2)), "Write Exclusive");
    EXPECT_EQ(KLunReservationInfo::reservationTypeToText(T(3)), "Exclusive Access");
    EXPECT_EQ(KLunReservationInfo::reservationTypeToText(T(4)), "Write Exclusive, Registrants Only");
    EXPECT_EQ(KLunReservationInfo::reservationTypeToText(T(5)), "Exclusive Access, Registrants Only");
    EXPECT_EQ(KLunReservationInfo::reservationTypeToText(T(6)), "Write Exclusive, All Registrants");
    EXPECT_EQ(KLunReservationInfo::reservationTypeToText(T(7)), "Exclusive Access, All Registrants");
    EXPECT_EQ(KLunReservationInfo::reservationTypeToText(T(8)), "***Reservation Type UNKNOWN***");
}

TEST(KLunReservationInfo, CopyAndInit)
{
    KLunReservationInfo info;
    info.eReservationType = KLunReservationInfo::RESERVATION_EXCLUSIVE_ACCESS;
    info.ui8ReservationKey[7] = 0x9;
    KLunReservationInfo copy(info);
    EXPECT_EQ(copy.displayText(), "    Type:  Exclusive Access\n    Key:  0x0000000000000009\n");
    copy.init();
    EXPECT_EQ(copy.eReservationType, KLunReservationInfo::RESERVATION_TYPE_UNKNOWN);
    EXPECT_EQ(copy.ui8ReservationKey[7], 0);
    EXPECT_EQ(copy.getSerialSize(), 12u);
}
