// The base of every command: its declaration, its keywords and the frame of
// operations that commands lean on for lookup, output and help.
#pragma once

#include <cstdio>
#include <string>

#include "api/MhbaReturn.h"
#include "core/CmdAction.h"
#include "core/CmdItem.h"
#include "core/ModifierId.h"
#include "core/Token.h"
#include "core/TokenInitializer.h"

class HIsaAdapter;
class PIpAddress;

class TokenCmd : public StringToken {
public:
    // Command groups, as declared in command rows.
    enum COMMAND_GROUP : int32_t {
        GROUP_ORDINARY = 1,
        GROUP_CACHE = 2,
        GROUP_LUN_CONFIG = 3,
        GROUP_FILE = 4,
        GROUP_NVDIMM = 6,
    };

    TokenCmd();

    // Declaration.
    void init(TokenInitializer const& row) override;
    void initModifiers(TokenInitializer::TOKEN_INITIALIZER const* rows);

    // The command's work; 0 or a return code, failure text in `err`.
    virtual int execCommand(std::string& err);
    virtual std::string cmdHelpText() const;

    // Keyword lookup: the command's own declaration wins over the common one.
    TokenModifierString* findModifier(ModifierId::MODIFIER_ID const& id, std::string& err) const;
    TokenModifierString* findCommonModifier(ModifierId::MODIFIER_ID const& id, std::string& err) const;
    bool verifyRequiredModifiersAreSet() const;
    void resetModifierRequiredParamValues();

    // Output channels.
    using Token::outResult;
    bool outDisplay(std::string const& text, std::string& err) const override;
    void outError(std::string const& text) const override;
    bool outResult(e_MHBA_RETURN status, void const* data, unsigned long size, std::string& err) const;
    bool outScript(FILE* stream, std::string const& text, std::string& err) const;
    bool displayIpAddress(HIsaAdapter* adapter, std::string& err) const;

    // The -agent address, and a test that the agent answers when one is given.
    bool getIpAddressFromCommandLineModifierIfFound(ModifierId::MODIFIER_ID id, PIpAddress& address, bool& found,
                                                    std::string& err);
    e_MHBA_RETURN testAgentConnectionIfAny(PIpAddress& agent, std::string& err);

    // Help texts.
    std::string ugOsPrompt() const;
    std::string ugCommand() const;
    std::string ugCommandLowCase() const;
    std::string ugCommandCapitalized() const;
    std::string ugCommandPrompt() const;
    bool displayDetailedHelp(std::string& err) const;
    bool outHelp(std::string const& text, int number, std::string const& baseName, std::string& err);
    bool writeHelp(std::string const& baseName, int a, int b, std::string const& text);
    int getConsoleWidth();

    // Preferences file.
    bool saveToPrefFile(FILE* file);
    bool initFromPrefFile(FILE* file);

    // Small helpers shared by commands.
    static bool isAllHexDigits(std::string const& text);
    static bool createDirectoryIfItDoesNotExist(std::string& path, std::string& err);
    static bool readLineFromFilePointer(FILE* file, std::string& out);
    static void removeLeadingWhitespace(std::string& text);

    CmdAction::CMD_ACTION action = CmdAction::ACTION_NO_ACTION;
    CmdItem::CMD_ITEM item = CmdItem::ITEM_NONE;
    int32_t commandGroup = 0;
    std::string helpTitle;
    std::string helpDescription;
    std::string helpSyntax;
    std::string helpModifiers;
    std::string helpExamples;
    std::string helpResultFile;
    std::string helpNotes;
};
