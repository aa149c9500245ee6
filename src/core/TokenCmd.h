// The base of every command: its declaration, its keywords and the frame of
// operations that commands lean on for lookup, output and help.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "api/MhbaReturn.h"
#include "core/CmdAction.h"
#include "core/CmdItem.h"
#include "core/ModifierId.h"
#include "core/Token.h"
#include "core/TokenInitializer.h"
#include "records/PBase.h"

class HIsaAdapter;
class PIpAddress;
class PTime;
class PTargetID;
class PInitiatorID;
class PLunID;
class KClusterID;
class KDeviceID;
class KDriveID;
class KWwulnLunID;
class KIsaAdapterPath;
class KInitiatorInfo;
class KAdapterGroupExtendedLunInfo;

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

    // Declaration (core/TokenCmd.cpp).
    void init(TokenInitializer const& row) override;
    void initModifiers(TokenInitializer::TOKEN_INITIALIZER const* rows);

    // The command's work; 0 or a return code, failure text in `err`. Each
    // command class overrides it in its own file.
    virtual int execCommand(std::string& err);
    virtual std::string cmdHelpText() const;

    // Keyword lookup: the command's own declaration wins over the common one
    // (core/TokenCmd.cpp).
    TokenModifierString* findModifier(ModifierId::MODIFIER_ID const& id, std::string& err) const;
    TokenModifierString* findCommonModifier(ModifierId::MODIFIER_ID const& id, std::string& err) const;
    bool verifyRequiredModifiersAreSet() const;
    void resetModifierRequiredParamValues();

    // Output channels (core/ExecutionFrame.cpp). Commands that write more
    // than one piece go through commands/CommandOutput.h.
    using Token::outResult;
    bool outDisplay(std::string const& text, std::string& err) const override;
    void outError(std::string const& text) const override;
    bool outResult(e_MHBA_RETURN status, void const* data, unsigned long size, std::string& err) const;
    bool outScript(FILE* stream, std::string const& text, std::string& err) const;
    bool displayIpAddress(HIsaAdapter* adapter, std::string& err) const;

    // The -agent address, and a test that the agent answers when one is given
    // (core/AgentKeyword.cpp).
    bool getIpAddressFromCommandLineModifierIfFound(ModifierId::MODIFIER_ID id, PIpAddress& address, bool& found,
                                                    std::string& err);
    e_MHBA_RETURN testAgentConnectionIfAny(PIpAddress& agent, std::string& err);

    // Keyword values: numbers, sizes, times, switches and identifiers. A
    // false result means the command stops, with the reason in `err`
    // (addressing/KeywordValues.cpp).
    bool getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_ID id, int min, int max, int& value, bool& found,
                                                 std::string& err);
    bool getI64NumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_ID id, long long min, long long max,
                                                    long long& value, bool& found, std::string& err);
    bool getByteSizeFromCommandLineModifierIfFound(ModifierId::MODIFIER_ID id, unsigned long long& bytes, bool& found,
                                                   std::string& err);
    bool getTimeFromCommandLineModifierIfFound(PTime& time, bool& found, std::string& err);
    bool getEnableFromCommandLineModifierIfFound(ModifierId::MODIFIER_ID id, bool& enable, bool& found,
                                                 std::string& err);
    bool getClusterIdFromCommandLineModifiers(KClusterID& id, bool& found, std::string& err);
    bool getDriveIdFromCommandLineModifiers(KDriveID& id, bool& found, std::string& err);
    bool getDeviceIdFromCommandLineModifiers(KDeviceID& id, bool& found, std::string& err);
    bool getInitiatorIdFromCommandLineModifiers(PInitiatorID& id, bool& found, std::string& err);
    bool getTargetIdFromCommandLineModifiers(bool destination, PTargetID& id, bool& found, std::string& err);
    // These three only tell whether the keyword was there.
    bool getAsciiDriveIDFromCommandLine(KDriveID& id, bool& found, std::string& err);
    bool getAsciiSSDLunIDFromCommandLine(KWwulnLunID& id, bool& found, std::string& err);
    bool getAsciiWwulnFromCommandLine(KWwulnLunID& id, bool& found, std::string& err);

    // Adapter selection from -zek (or another keyword naming an adapter)
    // (addressing/AdapterSelection.cpp).
    e_MHBA_RETURN selectAdapter(KIsaAdapterPath& path, std::string& err);
    e_MHBA_RETURN selectAdapterFromKeyword(ModifierId::MODIFIER_ID id, KIsaAdapterPath& path, std::string& err);

    // How adapters, clusters, devices, initiators, targets, drives, names
    // and LUNs are labelled in output (addressing/DisplayLabels.cpp).
    std::string getSummaryText_Adapter(KIsaAdapterPath const& path) const;
    std::string getSummaryText_Cluster(KClusterID const& id) const;
    std::string getDisplayText_Device(KDeviceID const& id) const;
    std::string getDisplayText_Initiator(PInitiatorID const& id, KInitiatorInfo const& info) const;
    std::string getDisplayText_Target(PTargetID const& id) const;
    std::string getDisplayText_Drive(KDriveID const& id) const;
    std::string getDisplayText_Wwname(unsigned char const* name, int length, PBase::WWULN_CODE_SET_TYPE codeSet,
                                      std::string const& keyword, bool destination) const;
    std::string getDisplayText_Lun(PLunID const& lun, bool bDestination) const;
    std::string getDisplayText_AdapterGroupLun(KAdapterGroupExtendedLunInfo const& info) const;

    // LUN resolution: the LUN keywords (or their -dmdest_ set) into paths
    // (addressing/LunResolution.cpp).
    bool getLunIdFromCommandLine(HIsaAdapter* adapter, bool bDestination, bool bOneLunRequired,
                                 std::vector<PLunID>& luns, std::string& err);
    bool getLunIdListForLunNameFromCommandLine(HIsaAdapter* adapter, bool bDestination, bool& bNameGiven,
                                               std::vector<PLunID>& luns, std::string& displayText, std::string& err);
    bool getLunIdListForOneLunNameType(HIsaAdapter* adapter, std::string const& name, PBase::LUN_NAME_TYPE type,
                                       PTargetID const& target, std::vector<PLunID>& luns, std::string& err);
    bool filterLunIdListToOnePerMulipathLun(HIsaAdapter* adapter, std::vector<PLunID>& luns, std::string& err);
    void testLunRelatedModifiers(bool& bAny, bool& bRequired, bool& bNumberOrTarget, bool& bWwuln, bool& bSerial) const;
    void testTargetRelatedModifiers(bool& bAny, bool& bRequired) const;
    void testInitiatorRelatedModifiers(bool& bAny, bool& bRequired) const;
    void testDeviceRelatedModifiers(bool& bAny, bool& bRequired) const;
    void setDefaultLunModifiers();

    // Menu mode: numbered menus and the prompts that fill this command's
    // keywords from them (interactive/MenuSelection.cpp, KeywordPrompts.cpp,
    // ObjectPrompts.cpp, LunPrompt.cpp, InteractiveStages.cpp). Prompts answer
    // 0 to go on, 56 for help, 57 for the main menu, 58 to quit, or an API code.
    int getMenuSelection(std::vector<std::string> const& entries, int defaultIndex, std::string const& prompt,
                         std::string const& line);
    int promptForString(TokenModifierString* token, std::string& line, std::string& err);
    int promptForEnum(TokenModifierString* token, std::string& line, std::string& err);
    int promptForModifier(TokenModifierString* token, bool required, std::string& line, std::string& err);
    int promptForTargetID(bool required, PTargetID& id, std::string& line, std::string& err);
    int promptForInitiatorID(bool required, PInitiatorID& id, std::string& line, std::string& err);
    int promptForDeviceID(bool required, KDeviceID& id, std::string& line, std::string& err);
    int promptForClusterID(bool required, KClusterID& id, std::string& line, std::string& err);
    int promptForDriveID(bool required, KDriveID& id, std::string& line, std::string& err);
    int promptForLunID(bool required, PLunID& id, std::string& line, std::string& err);
    int interactivePromptForModifiersThatSpanMultipleKeywords(std::string& line, std::string& err);
    int interactivePromptForModifiersThatSelectFromList(std::string& line, std::string& err);
    int interactivePromptForModifiersThatHaveNoParamData(std::string& line, std::string& err);
    int interactivePromptForRequiredModifiers(std::string& line, std::string& err);
    int interactivePromptForOptionalModifiersAndExecute(std::string& line, std::string& err);

    // Help texts (core/Help.cpp).
    std::string ugOsPrompt() const;
    std::string ugCommand() const;
    std::string ugCommandLowCase() const;
    std::string ugCommandCapitalized() const;
    std::string ugCommandPrompt() const;
    bool displayDetailedHelp(std::string& err) const;
    bool outHelp(std::string const& text, int number, std::string const& baseName, std::string& err);
    bool writeHelp(std::string const& baseName, int a, int b, std::string const& text);
    int getConsoleWidth();

    // Preferences file (core/Preferences.cpp).
    bool saveToPrefFile(FILE* file);
    bool initFromPrefFile(FILE* file);

    // Small helpers shared by commands (core/TokenCmd.cpp).
    static bool isAllHexDigits(std::string const& text);
    static bool createDirectoryIfItDoesNotExist(std::string& path, std::string& err);
    static bool readLineFromFilePointer(FILE* file, std::string& out);
    // The same, keeping at most `limit` bytes of a line; `tooLong` tells that
    // the rest was read past and dropped.
    static bool readLineFromFilePointer(FILE* file, std::string& out, size_t limit, bool& tooLong);
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
