// The steps that nearly every command addressed to one adapter takes, kept
// in one place so that each command only says what is particular to it:
// select the adapter and find it, read keywords, call the library, then the
// banner, the text and the result record.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "api/HIsaAdapter.h"
#include "api/MhbaReturn.h"
#include "core/ModifierId.h"
#include "records/KIsaAdapterPath.h"
#include "records/RecordImage.h"

class KIsaAdapterInfo;
class PIpAddress;
class TokenCmd;
class TokenModifierString;

// The adapter that -zek (or the remembered choice) names.
struct AddressedAdapter {
    KIsaAdapterPath path;
    HIsaAdapter* adapter = nullptr;
};

// Selects the adapter and finds it among those the library holds. Returns 0,
// the selection's own code, or 1004 when the library does not hold it.
int findAddressedAdapter(TokenCmd& cmd, AddressedAdapter& target, std::string& err);

// The same, and then the adapter's description, asked of the device: an
// adapter that does not answer gives its code before anything else is done.
int findAdapterAndInfo(TokenCmd& cmd, AddressedAdapter& target, KIsaAdapterInfo& info, std::string& err);

// The same for another keyword that names an adapter, such as -secondary.
int findAdapterFromKeyword(TokenCmd& cmd, ModifierId::MODIFIER_ID id, AddressedAdapter& target, std::string& err);

// Forgets every earlier scan and scans again from the adapter at
// `target.path`, which brings in the adapters it sees in the SAN. As the scan
// replaces the library's objects, the adapter is selected and found anew.
int rescanFromAdapter(TokenCmd& cmd, AddressedAdapter& target, std::string& err);

// The keywords of the commands that scan: the -agent address into `agent`,
// and the -zek keyword, which is returned. Null when either cannot be read.
TokenModifierString const* readScanKeywords(TokenCmd& cmd, PIpAddress& agent, std::string& err);

// Forgets every earlier scan and scans this host, or the host of the agent
// when its address is set. Finding no adapter at all is an answer, not a
// failure: the result is then 0 with `noneFound` set.
int rescanAdapters(PIpAddress& agent, bool& noneFound);

// The -agent address; the empty address, meaning this host, when not given.
// False when the address cannot be read.
bool readAgentAddress(TokenCmd& cmd, PIpAddress& agent, std::string& err);

// True when the keyword was typed on this command line, not just remembered.
bool keywordGiven(TokenModifierString const* keyword);

// True when the adapter is reached through a remote agent.
bool reachedThroughAgent(KIsaAdapterPath const& path);

// What a command shows at its end.
struct CommandReport {
    bool banner = true;      // the adapter banner ahead of the text
    std::string text;        // empty text shows nothing
    bool writeResult = true; // some commands write no result record at all
    e_MHBA_RETURN resultCode = MHBA_S_OK;
    void const* data = nullptr;
    unsigned long size = 0;

    // A report of commands that show no banner.
    static CommandReport withoutBanner(std::string const& text, e_MHBA_RETURN code = MHBA_S_OK,
                                       void const* data = nullptr, unsigned long size = 0)
    {
        CommandReport report;
        report.banner = false;
        report.text = text;
        report.resultCode = code;
        report.data = data;
        report.size = size;
        return report;
    }
};

// Banner, text and result record in that order. Returns 0, or 55 as soon as
// one of them could not be written. The code in the report reaches only the
// result record: the command itself has succeeded.
int finishCommand(TokenCmd const& cmd, HIsaAdapter* adapter, CommandReport const& report, std::string& err);

// Reads one record of the adapter and shows it: banner, its text, and its
// image as the result record.
template <typename Record>
int showAdapterRecord(TokenCmd const& cmd, HIsaAdapter& adapter, e_MHBA_RETURN (HIsaAdapter::*read)(Record&),
                      std::string& err)
{
    Record record;
    if (int const rc = (adapter.*read)(record))
        return rc;
    std::vector<unsigned char> const image = recordImage(record);
    CommandReport report;
    report.text = record.displayText();
    report.data = image.data();
    report.size = image.size();
    return finishCommand(cmd, &adapter, report, err);
}

// Reads one reply line of at most 32 bytes, cut at its first newline. An
// exhausted or closed input gives an empty reply.
std::string readReplyLine(FILE* in);

// Asks before a risky change: writes `prompt` to standard output and goes on
// only for the exact reply "yes".
bool confirmRisk(std::string const& prompt, FILE* in = stdin);
