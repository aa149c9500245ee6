#include "records/KFcInfo.h"

#include <cstring>

KFcInfo::KFcInfo() : PBase()
{
    init();
}

KFcInfo::KFcInfo(const KFcInfo& other) : PBase()
{
    init();
    *this = other;
}

KFcInfo& KFcInfo::operator=(const KFcInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&portIndex, getSerialSize(), &other.portIndex, getSerialSize());
    }
    return *this;
}

KFcInfo::~KFcInfo()
{
    init();
}

void KFcInfo::init()
{
    initSerialization(&portIndex, sizeof(KFcInfo));
    fastMemsetZero(&portIndex, getSerialSize());
    fcMode = FC_MODE_UNSET;
    frameSize = FRAME_SIZE_512;
    executionThrottle = 16;
    connectionMode = CONNECTION_MODE_UNSET;
    programmedConnectionOption = CONNECTION_OPTION_UNSET;
}

std::string KFcInfo::fcModeToText(FC_MODE mode)
{
    switch (mode) {
    case FC_MODE_FCP:
        return "FCP";
    case FC_MODE_FRAME_SHUTTLE:
        return "Frame Shuttle";
    case FC_MODE_FCOE:
        return "FCOE";
    default:
        return "Unknown";
    }
}

std::string KFcInfo::connectionModeToText(CONNECTION_MODE mode)
{
    switch (mode) {
    case CONNECTION_MODE_LOOP:
        return "Loop";
    case CONNECTION_MODE_POINT_TO_POINT:
        return "Point-to-Point";
    default:
        return "Unknown";
    }
}

std::string KFcInfo::pgmdConnectionOptionToText(PROGRAMMED_CONNECTION_OPTION option)
{
    switch (option) {
    case CONNECTION_OPTION_LOOP_ONLY:
        return "Loop Only";
    case CONNECTION_OPTION_POINT_TO_POINT_ONLY:
        return "Point-to-Point Only";
    case CONNECTION_OPTION_AUTO:
        return "Auto";
    default:
        return "Unknown";
    }
}

std::string KFcInfo::pgmdFrameSizeToText(FRAME_SIZE_TYPE size)
{
    switch (size) {
    case FRAME_SIZE_512:
        return "512";
    case FRAME_SIZE_1024:
        return "1024";
    case FRAME_SIZE_2048:
        return "2048";
    default:
        return "Unknown";
    }
}

std::string KFcInfo::sfpStateToText(SFP_STATE state)
{
    switch (state) {
    case SFP_STATE_NOT_PRESENT:
        return "Not Present";
    case SFP_STATE_4GB:
        return "4Gb";
    case SFP_STATE_8GB:
        return "8Gb";
    case SFP_STATE_4GB_MISMATCH:
        return "4Gb Mismatch";
    case SFP_STATE_8GB_MISMATCH:
        return "8Gb Mismatch";
    case SFP_STATE_10GB:
        return "10Gb";
    default:
        return "Unknown";
    }
}

std::string KFcInfo::displayText() const
{
    unsigned char firstPortId[sizeof(portId[0])];
    memcpy(firstPortId, portId[0], sizeof(firstPortId));

    std::string text = "    Port = FC" + ui64NumberToText(portIndex + 1ULL);
    text += "\n    Port Status = " + portStatusToText(portStatus);
    text += "\n    Link Status = " + linkStatusToText(linkStatus);
    text += "\n    FibreChannel Mode = " + fcModeToText(fcMode);
    text += "\n    Current Link Rate = " + fcLinkRateToText(currentLinkRate);
    text += "\n    Programmed Link Rate = " + fcLinkRateToText(programmedLinkRate);
    text += "\n    WWNN = " + wwnameToText(wwnn[0]);
    text += "\n    WWPN = " + wwnameToText(wwpn[0]);
    // The length argument is documentary; three bytes are shown.
    text += "\n    Port ID = " + portIdToText(firstPortId, 4);
    text += "\n    Firmware Revision = ";
    if (firmwareRevision[0] != '\0')
        text += charFieldToText(firmwareRevision);
    text += "\n    Frame Size = " + numberToText(frameSize);
    if (sfpState != SFP_STATE_UNKNOWN)
        text += "\n    SFP Type = " + sfpStateToText(sfpState);
    text += "\n    Execution Throttle = " + ui64NumberToText(executionThrottle);
    text += "\n    Connection Mode = " + connectionModeToText(connectionMode);
    text += "\n    Programmed Connection Option = " + pgmdConnectionOptionToText(programmedConnectionOption);
    return text + "\n";
}
