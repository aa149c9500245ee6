// One Fibre Channel port of an adapter: state, rates, names and settings.
#pragma once

#include "records/PBase.h"

class KFcInfo : public PBase {
public:
    enum FC_MODE : int32_t {
        FC_MODE_FCP = 0,
        FC_MODE_FRAME_SHUTTLE = 1,
        FC_MODE_FCOE = 2,
        // Just outside the table, so that an unfilled record reads "Unknown".
        FC_MODE_UNSET = 4,
    };

    enum CONNECTION_MODE : int32_t {
        CONNECTION_MODE_LOOP = 0,
        CONNECTION_MODE_POINT_TO_POINT = 1,
        CONNECTION_MODE_UNSET = 2,
    };

    enum PROGRAMMED_CONNECTION_OPTION : int32_t {
        CONNECTION_OPTION_LOOP_ONLY = 0,
        CONNECTION_OPTION_POINT_TO_POINT_ONLY = 1,
        CONNECTION_OPTION_AUTO = 2,
        CONNECTION_OPTION_UNSET = 3,
    };

    enum FRAME_SIZE_TYPE : int32_t {
        FRAME_SIZE_512 = 512,
        FRAME_SIZE_1024 = 1024,
        FRAME_SIZE_2048 = 2048,
    };

    enum SFP_STATE : int32_t {
        SFP_STATE_UNKNOWN = 0,
        SFP_STATE_NOT_PRESENT = 1,
        SFP_STATE_4GB = 2,
        SFP_STATE_8GB = 3,
        SFP_STATE_4GB_MISMATCH = 4,
        SFP_STATE_8GB_MISMATCH = 5,
        SFP_STATE_10GB = 6,
    };

    static constexpr unsigned int NAME_SLOTS = 4;

    KFcInfo();
    KFcInfo(const KFcInfo& other);
    KFcInfo& operator=(const KFcInfo& other);
    ~KFcInfo() override;

    void init() override;
    std::string displayText() const override;

    // Only the first of each table of names is in use.
    const unsigned char* wwnnUcharPtr() const { return wwnn[0]; }
    const unsigned char* wwpnUcharPtr() const { return wwpn[0]; }
    const unsigned char* portIdUcharPtr() const { return portId[0]; }
    unsigned char* wwnnUcharPtr() { return wwnn[0]; }
    unsigned char* wwpnUcharPtr() { return wwpn[0]; }
    unsigned char* portIdUcharPtr() { return portId[0]; }

    static std::string fcModeToText(FC_MODE mode);
    static std::string connectionModeToText(CONNECTION_MODE mode);
    static std::string pgmdConnectionOptionToText(PROGRAMMED_CONNECTION_OPTION option);
    static std::string pgmdFrameSizeToText(FRAME_SIZE_TYPE size);
    static std::string sfpStateToText(SFP_STATE state);

    uint32_t portIndex; // from 0; shown plus one
    PORT_STATUS portStatus;
    LINK_STATUS linkStatus;
    FC_MODE fcMode;
    FC_LINK_RATE currentLinkRate;
    FC_LINK_RATE programmedLinkRate;
    FRAME_SIZE_TYPE frameSize;
    SFP_STATE sfpState;
    uint32_t executionThrottle;
    CONNECTION_MODE connectionMode;
    PROGRAMMED_CONNECTION_OPTION programmedConnectionOption;
    unsigned char wwnn[NAME_SLOTS][8];
    unsigned char wwpn[NAME_SLOTS][8];
    unsigned char portId[NAME_SLOTS][3];
    char firmwareRevision[33];
};

static_assert(sizeof(KFcInfo) == 176, "KFcInfo image");
ZEK_ASSERT_FIELD_OFFSET(KFcInfo, portIndex, 20)
ZEK_ASSERT_FIELD_OFFSET(KFcInfo, wwnn, 64)
ZEK_ASSERT_FIELD_OFFSET(KFcInfo, firmwareRevision, 140)
