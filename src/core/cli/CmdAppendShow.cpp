#include "core/cli/CmdAppendShow.h"

#include "commands/CommandDeclaration.h"
#include "core/AppendSet.h"
#include "core/TokenRoot.h"
#include "core/TreeRoot.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_APPEND, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdAppendShow::CmdAppendShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Append";
    helpDescription = "Shows the saved append sets and their text, or the one set named by -append.";
    helpSyntax = "\t[-append=<name>]";
    helpModifiers = "-append=<name>\n"
                    "\tShows only this set. Note that its keywords also take effect on this command.\n";
    helpExamples = ugCommandPrompt() + "\n";
    helpResultFile = "";
    helpNotes = "";
}

int CmdAppendShow::execCommand(std::string& err)
{
    TokenRoot* const root = rootOfTree(this);
    TokenModifierString const* const append = findModifier(ModifierId::MODIFIER_APPEND, err);
    if (!root || !append)
        return ZEKCLI_PARSE_FAIL;
    std::string text;
    if (append->isDefault) {
        TokenModifierAppend const* const sets = dynamic_cast<TokenModifierAppend const*>(append);
        text = sets ? sets->displayAppendStrings() : std::string();
    } else {
        std::string const name = append->value;
        std::string lookupErr;
        std::string const set = root->getAppendSet(name, lookupErr);
        if (set.empty()) {
            err = "Append set \"" + name + "\" not found";
            return MHBA_E_OBJECT_NOT_FOUND;
        }
        text = appendSetDisplayLine(name, set);
    }
    return outDisplay(text, err) ? ZEKCLI_OK : ZEKCLI_OUTPUT_FAIL;
}
