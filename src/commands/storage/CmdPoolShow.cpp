#include "commands/storage/CmdPoolShow.h"

#include <vector>

#include "api/HIsaAdapter.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "records/KIsaAdapterInfo.h"
#include "records/KPoolInfo.h"
#include "records/RecordImage.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_POOL, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdPoolShow::CmdPoolShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Pool";
    helpDescription = "Shows the storage cache pool of the adapter: SSD storage, its use and data LUNs.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
    helpResultFile = recordResultHelp("KPoolInfo", 64);
}

int CmdPoolShow::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    HIsaAdapter& adapter = *addressed.adapter;
    KPoolInfo info;
    if (int const rc = adapter.getPoolInfo(info))
        return rc;
    KIsaAdapterInfo const* const described = adapter.getCachedAdapterInfo();
    bool const showDataLuns = described && described->isCapable(KIsaAdapterInfo::LOCAL_SSD_DATA_LUN);
    CommandReport report;
    report.text = info.displayText(showDataLuns);
    std::vector<unsigned char> const image = recordImage(info);
    report.data = image.data();
    report.size = image.size();
    return finishCommand(*this, &adapter, report, err);
}
