#include "commands/CommandTable.h"

#include "core/TokenRoot.h"

#include "commands/adapter/CmdAdapterFactoryReset.h"
#include "commands/adapter/CmdAdapterList.h"
#include "commands/adapter/CmdAdapterRestart.h"
#include "commands/adapter/CmdAdapterSet.h"
#include "commands/adapter/CmdAdapterShow.h"
#include "commands/adapter/CmdAdapterVersion.h"
#include "commands/adapter/CmdBeaconDisable.h"
#include "commands/adapter/CmdBeaconEnable.h"
#include "commands/adapter/CmdCaptureFileSave.h"
#include "commands/adapter/CmdClusterCreate.h"
#include "commands/adapter/CmdClusterDestroy.h"
#include "commands/adapter/CmdClusterList.h"
#include "commands/adapter/CmdClusterShow.h"
#include "commands/adapter/CmdDemonstrationSave.h"
#include "commands/adapter/CmdFileGet.h"
#include "commands/adapter/CmdFilePut.h"
#include "commands/adapter/CmdFirmwareUpdate.h"
#include "commands/adapter/CmdFruRestore.h"
#include "commands/adapter/CmdFruSave.h"
#include "commands/adapter/CmdHealthShow.h"
#include "commands/adapter/CmdMemberAdd.h"
#include "commands/adapter/CmdMemberRemove.h"
#include "commands/adapter/CmdMemoryShow.h"
#include "commands/adapter/CmdNvdimmExecute.h"
#include "commands/adapter/CmdNvdimmShow.h"
#include "commands/adapter/CmdPasswordSet.h"
#include "commands/adapter/CmdSfpShow.h"
#include "commands/adapter/CmdSystemCaptureShow.h"
#include "commands/cache/CmdCacheDisable.h"
#include "commands/cache/CmdCacheDump.h"
#include "commands/cache/CmdCacheEnable.h"
#include "commands/cache/CmdCacheFlush.h"
#include "commands/cache/CmdCacheInvalidate.h"
#include "commands/cache/CmdCacheLock.h"
#include "commands/cache/CmdCacheModify.h"
#include "commands/cache/CmdCachePurge.h"
#include "commands/cache/CmdCacheUnlock.h"
#include "commands/log/CmdLogClear.h"
#include "commands/log/CmdLogList.h"
#include "commands/log/CmdLogReport.h"
#include "commands/log/CmdLogSave.h"
#include "commands/log/CmdLogView.h"
#include "commands/lun/CmdLunCreate.h"
#include "commands/lun/CmdLunList.h"
#include "commands/lun/CmdLunModify.h"
#include "commands/lun/CmdLunRemove.h"
#include "commands/lun/CmdLunShow.h"
#include "commands/lun/CmdReservationClear.h"
#include "commands/lun/CmdReservationShow.h"
#include "commands/storage/CmdDeviceList.h"
#include "commands/storage/CmdDeviceShow.h"
#include "commands/storage/CmdDriveAdd.h"
#include "commands/storage/CmdDriveConfigRestore.h"
#include "commands/storage/CmdDriveList.h"
#include "commands/storage/CmdDriveRemove.h"
#include "commands/storage/CmdDriveShow.h"
#include "commands/storage/CmdFcBasicSet.h"
#include "commands/storage/CmdFcBasicShow.h"
#include "commands/storage/CmdFcDisable.h"
#include "commands/storage/CmdFcEnable.h"
#include "commands/storage/CmdInitiatorList.h"
#include "commands/storage/CmdInitiatorShow.h"
#include "commands/storage/CmdPoolRemove.h"
#include "commands/storage/CmdPoolSet.h"
#include "commands/storage/CmdPoolShow.h"
#include "commands/storage/CmdTargetList.h"
#include "commands/storage/CmdTargetSet.h"
#include "commands/storage/CmdTargetShow.h"
#include "core/cli/CmdAppendSet.h"
#include "core/cli/CmdAppendShow.h"
#include "core/cli/CmdDisplayClear.h"
#include "core/cli/CmdTimeWait.h"
#include "core/cli/CmdZekcliHelp.h"
#include "core/cli/CmdZekcliQhelp.h"
#include "core/cli/CmdZekcliRetval.h"
#include "core/cli/CmdZekcliVersion.h"
#include "interactive/CmdZekcliInteractive.h"
#include "scripting/CmdCsvMerge.h"
#include "scripting/CmdCsvScript.h"
#include "scripting/CmdScriptExecute.h"
#include "scripting/CmdScriptSave.h"
#include "statistics/CmdCacheStatisticsShow.h"
#include "statistics/CmdLunStatisticsClear.h"
#include "statistics/CmdLunStatisticsShow.h"
#include "statistics/CmdStatisticsClear.h"
#include "statistics/CmdStatisticsShow.h"

namespace {

template <class Command>
TokenCmd* create()
{
    return new Command;
}

// The order is what help, the menus and the preferences file show.
constexpr TokenCmd* (*const commandFactories[])() = {
    create<CmdZekcliQhelp>,
    create<CmdDriveAdd>,
    create<CmdMemberAdd>,
    create<CmdDisplayClear>,
    create<CmdLogClear>,
    create<CmdLunStatisticsClear>,
    create<CmdReservationClear>,
    create<CmdStatisticsClear>,
    create<CmdClusterCreate>,
    create<CmdLunCreate>,
    create<CmdClusterDestroy>,
    create<CmdBeaconDisable>,
    create<CmdCacheDisable>,
    create<CmdFcDisable>,
    create<CmdCacheDump>,
    create<CmdBeaconEnable>,
    create<CmdCacheEnable>,
    create<CmdFcEnable>,
    create<CmdNvdimmExecute>,
    create<CmdScriptExecute>,
    create<CmdAdapterFactoryReset>,
    create<CmdCacheFlush>,
    create<CmdFileGet>,
    create<CmdZekcliHelp>,
    create<CmdZekcliInteractive>,
    create<CmdCacheInvalidate>,
    create<CmdAdapterList>,
    create<CmdClusterList>,
    create<CmdDeviceList>,
    create<CmdDriveList>,
    create<CmdInitiatorList>,
    create<CmdLogList>,
    create<CmdLunList>,
    create<CmdTargetList>,
    create<CmdCacheLock>,
    create<CmdCsvMerge>,
    create<CmdCacheModify>,
    create<CmdLunModify>,
    create<CmdCachePurge>,
    create<CmdFilePut>,
    create<CmdDriveRemove>,
    create<CmdLunRemove>,
    create<CmdMemberRemove>,
    create<CmdLogReport>,
    create<CmdAdapterRestart>,
    create<CmdDriveConfigRestore>,
    create<CmdFruRestore>,
    create<CmdZekcliRetval>,
    create<CmdCaptureFileSave>,
    create<CmdDemonstrationSave>,
    create<CmdFruSave>,
    create<CmdLogSave>,
    create<CmdScriptSave>,
    create<CmdCsvScript>,
    create<CmdAdapterSet>,
    create<CmdAppendSet>,
    create<CmdFcBasicSet>,
    create<CmdPasswordSet>,
    create<CmdPoolSet>,
    create<CmdPoolRemove>,
    create<CmdTargetSet>,
    create<CmdAdapterShow>,
    create<CmdAppendShow>,
    create<CmdCacheStatisticsShow>,
    create<CmdClusterShow>,
    create<CmdDeviceShow>,
    create<CmdDriveShow>,
    create<CmdFcBasicShow>,
    create<CmdHealthShow>,
    create<CmdInitiatorShow>,
    create<CmdLunShow>,
    create<CmdLunStatisticsShow>,
    create<CmdMemoryShow>,
    create<CmdNvdimmShow>,
    create<CmdPoolShow>,
    create<CmdReservationShow>,
    create<CmdSfpShow>,
    create<CmdStatisticsShow>,
    create<CmdSystemCaptureShow>,
    create<CmdTargetShow>,
    create<CmdCacheUnlock>,
    create<CmdFirmwareUpdate>,
    create<CmdAdapterVersion>,
    create<CmdZekcliVersion>,
    create<CmdLogView>,
    create<CmdTimeWait>,
};

} // namespace

void addAllCommands(TokenRoot& root)
{
    for (auto const factory : commandFactories)
        root.addChild(factory());
}
