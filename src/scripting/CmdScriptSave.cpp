#include "scripting/CmdScriptSave.h"

#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/CmdAdapterSet.h"
#include "commands/cache/CmdCacheEnable.h"
#include "commands/cache/CmdCacheLock.h"
#include "commands/storage/CmdDriveAdd.h"
#include "commands/storage/CmdFcBasicSet.h"
#include "commands/storage/CmdFcEnable.h"
#include "commands/storage/CmdPoolSet.h"
#include "core/Token.h"
#include "core/TokenRoot.h"
#include "core/TreeRoot.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterInfo.h"

#include <cstring>
#include <ctime>

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SAVE, CmdItem::ITEM_SCRIPT, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_USEAPPEND, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdScriptSave::CmdScriptSave()
{
    declareCommand(*this, rows);
    helpTitle = "Save Script";
    helpDescription = "Saves an editable text file containing the current adapter configuration as a list of Host CLI "
                      "commands.";
    helpSyntax = "\t[-file=<file name>]\n"
                 "\t[-useappend=<append set>]\n" +
        adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tThe script file. Default is the console.\n"
                    "-useappend=<append set>\n"
                    "\tName of an append set (see \"set append\"): the script starts by\n"
                    "\tdefining it, and adapter commands of the script use it.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -file=adapter0.cfg" + ugCommandPrompt() +
        "-zek=0 -file=adapter0.cfg -useappend=site1";
    helpNotes = "The script does not hold cluster membership, cache size limits or passwords.";
}

namespace {

// Finds a writer's command in the tree; the writers belong to the commands
// that apply what they write.
template <class Command>
Command* writerCommand(TokenRoot const& root, CmdAction::CMD_ACTION action, CmdItem::CMD_ITEM item)
{
    std::string ignored;
    return dynamic_cast<Command*>(root.findCmd(action, item, ignored));
}

std::string headerText(KIsaAdapterInfo const& info, std::string const& appendName, TokenRoot& root)
{
    std::string const model(info.productName, strnlen(info.productName, sizeof info.productName));
    std::string const serial(info.serialNumber, strnlen(info.serialNumber, sizeof info.serialNumber));
    time_t const now = time(nullptr);
    std::string text =
        "# Configuration script for " + model + ", Serial# " + serial + "\n# Created " + asctime(localtime(&now));
    if (!appendName.empty()) {
        // A set that does not exist is written empty: the line still names it.
        std::string ignored;
        text += "set append -quiet /append=" + appendName + " " + root.getAppendSet(appendName, ignored) + "\n";
    }
    return text;
}

bool closeScriptFile(FILE* file)
{
    return !file || fclose(file) == 0;
}

} // namespace

int CmdScriptSave::runWriters(HIsaAdapter* adapter, FILE* file, std::string const& tail, std::string const& appendName,
                              KIsaAdapterInfo const& info, std::string& err)
{
    TokenRoot const& root = *rootOfTree(this);
    auto* const name = writerCommand<CmdAdapterSet>(root, CmdAction::ACTION_SET, CmdItem::ITEM_ADAPTER);
    auto* const rate = writerCommand<CmdFcBasicSet>(root, CmdAction::ACTION_SET, CmdItem::ITEM_FC);
    auto* const ports = writerCommand<CmdFcEnable>(root, CmdAction::ACTION_ENABLE, CmdItem::ITEM_FC_PORT);
    auto* const drives = writerCommand<CmdDriveAdd>(root, CmdAction::ACTION_ADD, CmdItem::ITEM_DRIVE);
    auto* const pool = writerCommand<CmdPoolSet>(root, CmdAction::ACTION_SET, CmdItem::ITEM_POOL);
    auto* const caching = writerCommand<CmdCacheEnable>(root, CmdAction::ACTION_ENABLE, CmdItem::ITEM_CACHE);
    auto* const locks = writerCommand<CmdCacheLock>(root, CmdAction::ACTION_LOCK, CmdItem::ITEM_CACHE);
    if (!name || !rate || !ports || !drives || !pool || !caching) {
        err = "The commands that write a script are missing from the command tree";
        return ZEKCLI_CMD_FAIL;
    }
    if (int const rc = name->saveScript(adapter, file, tail, appendName, info, err))
        return rc;
    if (int const rc = rate->saveScript(adapter, file, tail, appendName, info, err))
        return rc;
    if (int const rc = ports->saveScript(adapter, file, tail, appendName, info, err))
        return rc;
    if (int const rc = drives->saveScript(adapter, file, tail, appendName, err))
        return rc;
    if (int const rc = pool->saveScript(adapter, file, tail, appendName, err))
        return rc;
    if (int const rc = caching->saveScript(adapter, file, tail, appendName, err))
        return rc;
    return locks ? locks->saveScript(adapter, file, tail, appendName, err) : 0;
}

bool CmdScriptSave::openScriptFile(FILE*& file, std::string& appendName, std::string& err)
{
    TokenModifierString const* const path = findModifier(ModifierId::MODIFIER_FILEPATH, err);
    TokenModifierString const* const append = findModifier(ModifierId::MODIFIER_USEAPPEND, err);
    if (!path || !append)
        return false;
    appendName = keywordGiven(append) ? append->value : std::string();
    return !keywordGiven(path) || safe_fopen(&file, path->value, "w", err);
}

int CmdScriptSave::execCommand(std::string& err)
{
    AddressedAdapter target;
    if (int const rc = selectAdapter(target.path, err))
        return rc;
    // The script describes the adapter as it is now, never records kept
    // from an earlier scan.
    if (int const rc = rescanFromAdapter(*this, target, err))
        return rc;
    err.clear();
    FILE* file = nullptr;
    std::string appendName;
    if (!openScriptFile(file, appendName, err))
        return ZEKCLI_PARSE_FAIL;
    KIsaAdapterInfo info;
    int rc = target.adapter->getAdapterInfo(info);
    if (rc == 0 && !outScript(file, headerText(info, appendName, *rootOfTree(this)), err))
        rc = ZEKCLI_OUTPUT_FAIL;
    if (rc != 0) {
        closeScriptFile(file);
        return rc;
    }
    std::string tail = " /zek=" + target.path.hbaIDText();
    if (!appendName.empty())
        tail += " -append=" + appendName;
    rc = runWriters(target.adapter, file, tail, appendName, info, err);
    // Lines still buffered are written on closing: a failure there lost them.
    if (!closeScriptFile(file) && rc == 0)
        rc = ZEKCLI_OUTPUT_FAIL;
    if (!outDisplay("Script generated successfully", err))
        return ZEKCLI_OUTPUT_FAIL;
    return rc;
}
