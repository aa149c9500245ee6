// The SCSI persistent reservation held on a LUN.
#pragma once

#include "records/PBase.h"

class KLunReservationInfo : public PBase {
public:
    enum KISA_RESERVATION_TYPE : int32_t {
        RESERVATION_TYPE_UNKNOWN = 0,
        RESERVATION_NONE = 1,
        RESERVATION_WRITE_EXCLUSIVE = 2,
        RESERVATION_EXCLUSIVE_ACCESS = 3,
        RESERVATION_WRITE_EXCLUSIVE_REGISTRANTS_ONLY = 4,
        RESERVATION_EXCLUSIVE_ACCESS_REGISTRANTS_ONLY = 5,
        RESERVATION_WRITE_EXCLUSIVE_ALL_REGISTRANTS = 6,
        RESERVATION_EXCLUSIVE_ACCESS_ALL_REGISTRANTS = 7,
    };

    KLunReservationInfo();
    KLunReservationInfo(const KLunReservationInfo& other);
    KLunReservationInfo& operator=(const KLunReservationInfo& other);
    ~KLunReservationInfo() override;

    void init() override;
    std::string displayText() const override;

    static std::string reservationTypeToText(KISA_RESERVATION_TYPE type);

    KISA_RESERVATION_TYPE eReservationType;
    uint8_t ui8ReservationKey[8];
};

static_assert(sizeof(KLunReservationInfo) == 32, "KLunReservationInfo image");
ZEK_ASSERT_FIELD_OFFSET(KLunReservationInfo, ui8ReservationKey, 24)
