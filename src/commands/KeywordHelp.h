// Help text of the keywords that many commands share, so that every command
// describes them in the same words.
#pragma once

#include <string>

// Syntax lines of the seven LUN keywords, one per line, no final line feed.
std::string lunSelectorSyntax();
// What the seven LUN keywords mean, no final line feed.
std::string lunSelectorHelp();

// Syntax line of the -zek keyword for commands that act on one adapter and do
// not declare -zek themselves: there the keyword must be given.
std::string adapterSyntax();
// What -zek means for those commands, no final line feed.
std::string adapterHelp();

// -port, for the commands that act on one Fibre Channel port; `required` when
// the command must be told which port.
std::string portSyntax(bool required);
std::string portHelp();

// -lun_size_lba and -lun_start_lba, in that order, for the block range
// commands.
std::string lbaRangeSyntax(bool required);
std::string lbaRangeHelp();

// Layout of a result file payload that lists records: a count, then each
// record behind its size.
std::string listResultHelp(std::string const& record, unsigned int size, std::string const& what);
// Layout of a result file payload of one record.
std::string recordResultHelp(std::string const& record, unsigned int size);
