// The Fibre Channel port that a command names with -port, checked against the
// adapter's own number of ports, and the reading of one record per port that
// the "show" commands of ports share.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "commands/CommandPattern.h"
#include "records/RecordImage.h"

class TokenCmd;

// The adapter, how many ports it reports, and the port -port chose.
struct FcPortChoice {
    AddressedAdapter addressed;
    uint32_t portCount = 0;
    bool given = false; // false: -port was not on the line
    uint32_t index = 0; // the chosen port, counted from 0 as the library counts
};

// Finds the adapter, asks it for its description (an adapter that does not
// answer gives its code) and reads -port in the range 1 to its port count.
// 0, the adapter's code, or 52 with the number parser's message.
int chooseFcPort(TokenCmd& cmd, FcPortChoice& choice, std::string& err);

// The same for the commands that cannot work without a port: a port that
// was not given is refused with 52.
int chooseRequiredFcPort(TokenCmd& cmd, FcPortChoice& choice, std::string& err);

// Reads the record of the chosen port, or of every port in order, and joins
// their texts: each followed by a line feed when all ports are shown, and
// the chosen port's alone only when `lineFeedAfterChosen`. The record read
// last stays in `record`. 0, or the first code the adapter gives.
template <typename Record>
int readPortRecords(FcPortChoice const& choice, e_MHBA_RETURN (HIsaAdapter::*read)(uint32_t, Record&),
                    bool lineFeedAfterChosen, Record& record, std::string& text)
{
    uint32_t const first = choice.given ? choice.index : 0;
    uint32_t const end = choice.given ? choice.index + 1 : choice.portCount;
    for (uint32_t index = first; index < end; ++index) {
        if (int const rc = (choice.addressed.adapter->*read)(index, record))
            return rc;
        text += record.displayText();
        if (!choice.given || lineFeedAfterChosen)
            text += "\n";
    }
    return 0;
}

// Shows the records that readPortRecords reads: banner, their texts, and
// the record read last as the result record.
template <typename Record>
int showPortRecords(TokenCmd& cmd, e_MHBA_RETURN (HIsaAdapter::*read)(uint32_t, Record&), bool lineFeedAfterChosen,
                    std::string& err)
{
    FcPortChoice choice;
    if (int const rc = chooseFcPort(cmd, choice, err))
        return rc;
    Record record;
    CommandReport report;
    if (int const rc = readPortRecords(choice, read, lineFeedAfterChosen, record, report.text))
        return rc;
    std::vector<unsigned char> const image = recordImage(record);
    report.data = image.data();
    report.size = image.size();
    return finishCommand(cmd, choice.addressed.adapter, report, err);
}
