#include "records/KLunReservationInfo.h"

KLunReservationInfo::KLunReservationInfo() : PBase()
{
    init();
}

KLunReservationInfo::KLunReservationInfo(const KLunReservationInfo& other) : PBase()
{
    init();
    *this = other;
}

KLunReservationInfo& KLunReservationInfo::operator=(const KLunReservationInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&eReservationType, getSerialSize(), &other.eReservationType, getSerialSize());
    }
    return *this;
}

KLunReservationInfo::~KLunReservationInfo()
{
    init();
}

void KLunReservationInfo::init()
{
    initSerialization(&eReservationType, sizeof(KLunReservationInfo));
    fastMemsetZero(&eReservationType, getSerialSize());
}

std::string KLunReservationInfo::reservationTypeToText(KISA_RESERVATION_TYPE type)
{
    switch (type) {
    case RESERVATION_TYPE_UNKNOWN:
        return "***Reservation Type Unknown***";
    case RESERVATION_NONE:
        return "No Reservation Held";
    case RESERVATION_WRITE_EXCLUSIVE:
        return "Write Exclusive";
    case RESERVATION_EXCLUSIVE_ACCESS:
        return "Exclusive Access";
    case RESERVATION_WRITE_EXCLUSIVE_REGISTRANTS_ONLY:
        return "Write Exclusive, Registrants Only";
    case RESERVATION_EXCLUSIVE_ACCESS_REGISTRANTS_ONLY:
        return "Exclusive Access, Registrants Only";
    case RESERVATION_WRITE_EXCLUSIVE_ALL_REGISTRANTS:
        return "Write Exclusive, All Registrants";
    case RESERVATION_EXCLUSIVE_ACCESS_ALL_REGISTRANTS:
        return "Exclusive Access, All Registrants";
    default:
        return "***Reservation Type UNKNOWN***";
    }
}

std::string KLunReservationInfo::displayText() const
{
    // An unknown type and "none" both mean that nobody holds the LUN.
    if (eReservationType < RESERVATION_WRITE_EXCLUSIVE)
        return "    Type:   No reservation held\n";
    std::string text = "    Type:  " + reservationTypeToText(eReservationType) + "\n    Key:  0x";
    for (uint8_t byte : ui8ReservationKey)
        text += byteToHexText(byte);
    return text + "\n";
}
