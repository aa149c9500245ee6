// Help is drawn from the same tree as everything else: each command's help
// strings give the detailed help, the summary, the list of usage constraints
// and the documentation fragments that -genhelpdoc writes.
#include <cstdio>
#include <string>
#include <sys/ioctl.h>
#include <unistd.h>
#include <vector>

#include "core/FileByName.h"
#include "core/Parser.h"
#include "core/TokenRoot.h"
#include "core/TreeRoot.h"

namespace {

constexpr char const* kHelpFileName = "help.log";
constexpr size_t kItemListIndent = 16;
constexpr size_t kItemListWrapIndent = 28;
constexpr size_t kItemListWidth = 70;

// Numbering of the documentation fragments, across the whole process.
int helpItemNumber = 0;
int helpCommandNumber = 0;

// An empty help string still takes its place in the layout.
std::string orBlank(std::string const& text)
{
    return text.empty() ? std::string(" ") : text;
}

bool hasNotes(TokenCmd const& cmd)
{
    return cmd.helpNotes.size() > 1;
}

TokenCmd* asCommand(Token* token)
{
    return token->tokenType == Token::TOKEN_TYPE_CMD ? static_cast<TokenCmd*>(token) : nullptr;
}

std::string resultFileLayoutHelp()
{
    return "\tint    nHeaderSizeInBytes;  8*sizeof(int) = 32 bytes\n"
           "\tint    apiVersion[4];\n"
           "\tint    cmdAction;           (See CmdAction::CMD_ACTION)\n"
           "\tint    cmdItem;             (See CmdItem::CMD_ITEM)\n"
           "\tint    completionStatus;    {See HbaMgmtApi::MHBA_RETURN\n";
}

std::string capitalized(std::string word)
{
    if (!word.empty())
        word[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(word[0])));
    return word;
}

std::string actionText(TokenCmd const& cmd)
{
    return CmdAction::table().textFromVal(cmd.action);
}

std::string itemText(TokenCmd const& cmd)
{
    return CmdItem::table().textFromVal(cmd.item);
}

} // namespace

// ---- command texts --------------------------------------------------------

std::string TokenCmd::ugOsPrompt() const
{
    return "admin@localhost:~/> cli ";
}

std::string TokenCmd::ugCommand() const
{
    return actionText(*this) + " " + itemText(*this) + " ";
}

std::string TokenCmd::ugCommandLowCase() const
{
    return actionText(*this) + " " + itemText(*this);
}

std::string TokenCmd::ugCommandCapitalized() const
{
    return capitalized(actionText(*this)) + " " + capitalized(itemText(*this));
}

std::string TokenCmd::ugCommandPrompt() const
{
    return "\n" + ugOsPrompt() + ugCommand();
}

int TokenCmd::getConsoleWidth()
{
    struct winsize size {};
    ioctl(STDOUT_FILENO, TIOCGWINSZ, &size);
    return size.ws_col;
}

// ---- detailed help --------------------------------------------------------

bool TokenCmd::displayDetailedHelp(std::string& err) const
{
    TokenModifierString const* const result = findModifier(ModifierId::MODIFIER_RESULT, err);
    if (!result) {
        outError(err);
        return false;
    }
    std::string text =
        "\nSyntax: " + ugCommandLowCase() + "\n" + orBlank(helpSyntax) + "\n\nModifiers:\n" + orBlank(helpModifiers);
    if (hasNotes(*this))
        text += "\n\nNotes:\n" + helpNotes;
    text += "\n\nExamples: " + orBlank(helpExamples);
    if (!result->isDefault)
        text += "\n\nResult File: " + resultFileLayoutHelp() + "\n";
    text += "\n\n";
    return outDisplay(text, err);
}

bool Parser::displayDetailedHelp(std::string& err) const
{
    if (!currentCmd) {
        if (!err.empty()) {
            root.outError(err);
            return false;
        }
        err = "Unrecognized command syntax\n";
        return root.displaySummaryHelp(err);
    }
    if (root.isGroupDisabled(currentCmd->commandGroup)) {
        std::string text = "*** This command is not enabled";
        if (!root.isGroupHidden(currentCmd->commandGroup))
            text += "\n    " + currentCmd->ugCommand() + "\n" + orBlank(currentCmd->helpSyntax) + "\n";
        return currentCmd->outDisplay(text, err);
    }
    return currentCmd->displayDetailedHelp(err);
}

// ---- summary and constraint help ------------------------------------------

bool TokenRoot::displaySummaryHelp(std::string& err) const
{
    std::string text = "  Usage:";
    for (Token* child : children) {
        TokenCmd const* const cmd = asCommand(child);
        if (cmd && !isGroupHidden(cmd->commandGroup))
            text += "\n    " + cmd->ugCommand() + "\n" + orBlank(cmd->helpSyntax) + "\n";
    }
    std::string const stars(55, '*');
    text += "\n\n\n" + stars + "\n" + "* Modifiers common to all CLI commands\n" + stars + "\n" + commonModifierHelp() +
        "\n\n\n" + "For more detail on any of these commands start CLI with\n" +
        "the action and item followed by -help or -?\n";
    return outDisplay(text, kHelpFileName, err);
}

bool TokenRoot::displayConstraintHelp(std::string& err) const
{
    std::string text = "  CLI commands with usage constraints:";
    for (Token* child : children) {
        TokenCmd const* const cmd = asCommand(child);
        if (cmd && hasNotes(*cmd))
            text += "\n    " + cmd->ugCommand() + "\n" + cmd->helpNotes + "\n\n";
    }
    return outDisplay(text, kHelpFileName, err);
}

std::string TokenRoot::commonResultHelp() const
{
    return resultFileLayoutHelp();
}

std::string TokenRoot::commonModifierHelp() const
{
    return "\n"
           "-help\tDisplays detailed help for this command\n"
           "\n"
           "-zek = <locally connected device instance> | <ZEK world-wide name | ZEK Symbolic name>\n"
           "\tSelects the adapter that the command works on: a single decimal digit is the\n"
           "\tinstance number of a locally connected device; otherwise give the adapter's\n"
           "\tworld-wide name in hexadecimal, or its symbolic name.\n"
           "\n"
           "-agent=<IP address of host running remote agent>\n"
           "\tExecutes the rest of the command line on that host, through the remote agent\n"
           "\trmtagent_zek running there, instead of on the local host.\n"
           "\n"
           "-demonstration_file = <File Name>\n"
           "\tInitializes CLI from a saved demonstration file, (see 'save demonstration_file' command for "
           "details), instead of attempting to find and use real adapters.\n"
           "\tThis keyword cannot be combined with the -agent keyword.\n"
           "\n"
           "-echo\n"
           "\tIf used, text output to console or text file will include a copy of the command line input, (even if "
           "-quiet is also used)\n"
           "\n"
           "-quiet\n"
           "\tSuppresses all text output from the command including both normal\n"
           "\ttext display and error messages\n"
           "\n"
           "-show_only_error\n"
           "\tSimilar to -quiet, this suppresses all text output from the command except for error messages\n"
           "\n"
           "-textfile = <File Name>\n"
           "\tAppends normal display text and error messages to a specified\n"
           "\tfile (Can be used with -quiet)\n"
           "\tDefault file name is <action>_<item>.log\n"
           "\n"
           "-result = <File Name>\n"
           "\tCreates a file containing binary output data\n"
           "\tReplaces file if it already exists\n"
           "\tDefault file name is <action>_<item>.dat\n"
           "\tDefault location is the working directory\n"
           "\n";
}

// ---- item list for menus --------------------------------------------------

void TokenRoot::getItemListAsHelpTextForSpecificAction(CmdAction::CMD_ACTION action, std::string& text) const
{
    std::vector<CmdItem::CMD_ITEM> items;
    getListOfAvailableItemsForSpecificAction(action, items);
    if (items.empty())
        return;
    if (text.size() < kItemListIndent)
        text.append(kItemListIndent - text.size(), ' ');
    text += "[ ";
    size_t column = kItemListIndent;
    for (size_t i = 0; i < items.size(); ++i) {
        std::string piece = CmdItem::table().textFromVal(items[i]);
        if (i + 1 < items.size())
            piece += " | ";
        if (column + piece.size() > kItemListWidth) {
            text += "\n" + std::string(kItemListWrapIndent, ' ');
            column = kItemListWrapIndent;
        }
        text += piece;
        column += piece.size();
    }
    text += " ]";
}

// ---- documentation fragments ----------------------------------------------

// One file per item title, and per command one file per help string. The
// names grow by the item number as the walk goes on; the documentation
// build depends on these names as they come out.
bool TokenRoot::genHelpDoc(std::string const& baseName, std::string& err)
{
    CmdAction::CMD_ACTION lastAction = CmdAction::ACTION_NO_ACTION;
    CmdItem::CMD_ITEM lastItem = CmdItem::ITEM_NONE;
    std::string name;
    for (Token* child : children) {
        TokenCmd* const cmd = asCommand(child);
        if (!cmd)
            continue;
        std::string const item = itemText(*cmd);
        if (cmd->item != lastItem) {
            lastItem = cmd->item;
            ++helpItemNumber;
            helpCommandNumber = 0;
            name = baseName + std::to_string(helpItemNumber);
            if (!cmd->outHelp(item, -1, name, err))
                return false;
        }
        if (cmd->action != lastAction || helpCommandNumber == 0) {
            if (cmd->action != lastAction)
                name = baseName;
            lastAction = cmd->action;
            ++helpCommandNumber;
        }
        name += std::to_string(helpItemNumber);
        if (!cmd->outHelp(item, helpCommandNumber, name, err))
            return false;
    }
    return true;
}

bool TokenCmd::outHelp(std::string const& text, int number, std::string const& baseName, std::string&)
{
    if (number == -1)
        return writeHelp(baseName, -1, -1, text);
    struct Fragment {
        int part;
        std::string text;
    } const fragments[] = {
        {-1, helpTitle},         {1, helpDescription}, {2, ugCommandLowCase()},
        {3, helpSyntax},         {4, helpModifiers},   {5, helpNotes},
        {6, ugCommandLowCase()}, {7, helpExamples},    {8, resultFileLayoutHelp() + " \n" + orBlank(helpResultFile)},
    };
    for (Fragment const& fragment : fragments)
        if (!writeHelp(baseName, number, fragment.part, orBlank(fragment.text)))
            return false;
    return true;
}

bool TokenCmd::writeHelp(std::string const& baseName, int a, int b, std::string const& text)
{
    std::string path = baseName;
    if (a != -1)
        path += "_" + std::to_string(a);
    if (b != -1)
        path += "_" + std::to_string(b);
    path += ".txt";
    std::string unwritable;
    FILE* file = openFileByName(path, "w", unwritable);
    if (!file)
        return false;
    if (!text.empty())
        fwrite(text.data(), 1, text.size(), file);
    fclose(file);
    return true;
}
