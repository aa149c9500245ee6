// The root of the grammar tree: owns the commands, the keywords common to
// all of them, the output flags and the run statistics.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "api/MhbaReturn.h"
#include "core/CmdAction.h"
#include "core/CmdItem.h"
#include "core/Token.h"
#include "core/TokenCmd.h"
#include "core/TokenInitializer.h"
#include "core/ZekcliStats.h"

class HIsaAdapter;
class Parser;

// Rows of the keywords that every command accepts.
extern TokenInitializer::TOKEN_INITIALIZER const parseTreeCommonModifierInit[];

class TokenRoot : public Token {
public:
    static constexpr int GROUP_TABLE_SIZE = 14;

    TokenRoot();

    void addCommonModifiersForAllCommands(TokenInitializer::TOKEN_INITIALIZER const* rows);
    TokenCmd* findCmd(CmdAction::CMD_ACTION action, CmdItem::CMD_ITEM item, std::string& err) const;
    void resetModifierRequiredParamValues();
    bool isGroupDisabled(int32_t group) const;
    bool isGroupHidden(int32_t group) const;
    void getListOfAvailableActions(std::vector<CmdAction::CMD_ACTION>& actions) const;
    void getListOfAvailableItemsForSpecificAction(CmdAction::CMD_ACTION action,
                                                  std::vector<CmdItem::CMD_ITEM>& items) const;
    void getItemListAsHelpTextForSpecificAction(CmdAction::CMD_ACTION action, std::string& text) const;

    // Runs a further line in this same tree (script lines).
    int execOneCommandLine(std::string const& line, std::string& err, unsigned int iteration) const;

    // Output channels.
    using Token::outDisplay;
    using Token::outResult;
    void outError(std::string const& text) const override;
    bool outDisplay(std::string const& text, std::string const& fileName, std::string& err) const;
    bool outTextFile(std::string const& text, std::string const& fileName, std::string& err) const;
    bool outResult(CmdAction::CMD_ACTION action, CmdItem::CMD_ITEM item, e_MHBA_RETURN status, void const* data,
                   unsigned long size, std::string const& fileName, std::string& err) const;
    bool displayIpAddress(HIsaAdapter* adapter, std::string const& fileName, std::string& err) const;
    void myProgressMsg(int percent) const override;

    // Append sets and preferences file.
    std::string getAppendSet(std::string const& name, std::string& err);
    void updateAppendSet(std::string const& name, std::string const& text);
    bool saveToPrefFile(FILE* file);
    bool initFromPrefFile(FILE* file);

    // Help.
    bool displaySummaryHelp(std::string& err) const;
    bool displayConstraintHelp(std::string& err) const;
    bool genHelpDoc(std::string const& baseName, std::string& err);
    std::string commonModifierHelp() const;
    std::string commonResultHelp() const;

    Parser* parser = nullptr;
    TokenCmd commonCommand;
    bool quiet = false;
    bool showOnlyError = false;
    bool textFileEnabled = false;
    bool resultFileEnabled = false;
    std::string textFileName;
    std::string resultFileName;
    ZekcliStats stats;
    int32_t disabledGroups[GROUP_TABLE_SIZE] = {};
    int32_t hiddenGroups[GROUP_TABLE_SIZE] = {};
    int32_t lastInteractiveAction = 0;
    int32_t lastInteractiveItem = 0;
};
