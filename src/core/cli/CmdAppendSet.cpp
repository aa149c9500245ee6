#include "core/cli/CmdAppendSet.h"

#include "commands/CommandDeclaration.h"
#include "core/TokenRoot.h"
#include "core/TreeRoot.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SET, CmdItem::ITEM_APPEND, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_APPEND, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdAppendSet::CmdAppendSet()
{
    declareCommand(*this, rows);
    helpTitle = "Set Append";
    helpDescription = "Saves the rest of the command line under a name, as an append set. Any later command "
                      "given -append=<name> reads the saved keywords in place of that keyword. Given no text, "
                      "an existing set is removed. Sets are kept with the CLI preferences in the home "
                      "directory.";
    helpSyntax = "\t-append=<name> [<keywords to save>]";
    helpModifiers = "-append=<name>\n"
                    "\tThe name of the set; names are kept in lower case. Everything that follows on the\n"
                    "\tcommand line is saved as the set's text.\n";
    helpExamples = ugCommandPrompt() + "-append=san2 -agent=192.168.1.20 -zek=1\n" + "\n" + ugOsPrompt() +
        "show lun -append=san2\n" + ugCommandPrompt() + "-append=san2\n";
    helpResultFile = "";
    helpNotes = "";
}

// The parser has already stored the text behind -append=<name>; a value
// quoted with a blank inside ("x -quiet") carries name and text at once.
int CmdAppendSet::execCommand(std::string& err)
{
    TokenRoot* const root = rootOfTree(this);
    TokenModifierString const* const append = findModifier(ModifierId::MODIFIER_APPEND, err);
    if (!root || !append)
        return ZEKCLI_PARSE_FAIL;
    if (append->isDefault || append->value.empty()) {
        err = "-append=... must be used to supply a name for the saved command line text";
        return ZEKCLI_PARSE_FAIL;
    }
    std::string::size_type const blank = append->value.find(' ');
    std::string const name = append->value.substr(0, blank);
    std::string const rest = blank == std::string::npos ? std::string() : append->value.substr(blank);
    if (!rest.empty())
        root->updateAppendSet(name, rest);

    std::string report = "-append=" + name;
    std::string lookupErr;
    std::string const text = root->getAppendSet(name, lookupErr);
    report += text.empty() ? " contents cleared\n" : " --> " + text + "\n";
    return outDisplay(report, err) ? ZEKCLI_OK : ZEKCLI_OUTPUT_FAIL;
}
