#include "commands/adapter/CmdFilePut.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/FileCommand.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_PUT, CmdItem::ITEM_FILE, TokenCmd::GROUP_FILE),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_NAME, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_CLEAR, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE, "~"),
    endRow(),
};

} // namespace

CmdFilePut::CmdFilePut()
{
    declareCommand(*this, rows);
    helpTitle = "Put File";
    helpDescription = "Copies a file from the host to the adapter (to its /var/ftp area).";
    helpSyntax = "\t-file=<file name>\n"
                 "\t[-name=<name>]\n"
                 "\t[-clear]\n" +
        adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tLocal file to copy.\n"
                    "-name=<name>\n"
                    "\tName of the file on the adapter. Default is the local name.\n"
                    "-clear\n"
                    "\tClear the file on the adapter before the copy.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -file=/tmp/config.txt -name=config.txt";
}

int CmdFilePut::execCommand(std::string& err)
{
    AddressedAdapter target;
    std::string file;
    AdapterFileKeywords adapterFile;
    if (int const rc = findAdapterFileCopy(*this, target, file, adapterFile, err))
        return rc;
    if (int const rc = target.adapter->putFile(file.c_str(), adapterFile.nameOrNull(), adapterFile.clear))
        return rc;
    CommandReport report;
    report.text = "\"" + file + "\" copied successfully to Fibre Channel Adapter";
    if (adapterFile.named)
        report.text += " file \"" + adapterFile.name + "\"";
    return finishCommand(*this, target.adapter, report, err);
}
