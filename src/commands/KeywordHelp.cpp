#include "commands/KeywordHelp.h"

#include <cstdio>

std::string lunSelectorSyntax()
{
    return "\t[-lun_wwuln=<wwuln>]\n"
           "\t[-lun_any_wwuln=<wwuln or serial>]\n"
           "\t[-lun_serial=<serial>]\n"
           "\t[-lun_number=<number>]\n"
           "\t[-vpgindex=<index>]\n"
           "\t[-fc_target=<wwpn>]\n"
           "\t[-is_target=<iscsi name>]";
}

std::string lunSelectorHelp()
{
    return "-lun_wwuln=<wwuln>\n"
           "\tThe LUN by its world-wide unique LUN name from the inquiry data,\n"
           "\tas \"list lun\" shows it. All paths to the LUN are meant.\n"
           "-lun_any_wwuln=<wwuln or serial>\n"
           "\tThe LUN by its world-wide unique LUN name or, if none matches,\n"
           "\tby its Page 0x80 serial number.\n"
           "-lun_serial=<serial>\n"
           "\tThe LUN by its Page 0x80 serial number.\n"
           "-lun_number=<number>\n"
           "\tLUN number on the target. Default is 0.\n"
           "-vpgindex=<index>\n"
           "\tVolume path group index of the LUN path. Default is 1.\n"
           "-fc_target=<wwpn>\n"
           "\tWorld-wide port name of the Fibre Channel target of the LUN.\n"
           "-is_target=<iscsi name>\n"
           "\tName of the iSCSI target of the LUN.\n"
           "\tOnly one of -lun_wwuln, -lun_serial and -lun_any_wwuln can be used.";
}

std::string adapterSyntax()
{
    return "\t-zek=<adapter>";
}

std::string adapterHelp()
{
    return "-zek=<adapter>\n"
           "\tThe adapter: a local device instance (a single digit), an adapter\n"
           "\tworld-wide name in hexadecimal, or its symbolic name.";
}

namespace {

// One syntax line: optional keywords stand in brackets.
std::string syntaxLine(std::string const& keyword, bool required)
{
    return required ? "\t" + keyword : "\t[" + keyword + "]";
}

// A result layout line: type and name in columns, then the meaning.
std::string resultLine(char const* type, std::string const& name, std::string const& meaning)
{
    char line[160];
    std::snprintf(line, sizeof line, "\t%-6s %-20s %s\n", type, name.c_str(), meaning.c_str());
    return line;
}

} // namespace

std::string portSyntax(bool required)
{
    return syntaxLine("-port=<port number>", required);
}

std::string portHelp()
{
    return "-port=<port number>\n"
           "\tFibre Channel port, from 1 to the number of ports of the adapter.";
}

std::string lbaRangeSyntax(bool required)
{
    return syntaxLine("-lun_size_lba=<blocks>", required) + "\n" + syntaxLine("-lun_start_lba=<lba>", required);
}

std::string lbaRangeHelp()
{
    return "-lun_size_lba=<blocks>\n"
           "\tLength of the range in logical blocks of 512 bytes.\n"
           "-lun_start_lba=<lba>\n"
           "\tFirst logical block of the range.";
}

std::string listResultHelp(std::string const& record, unsigned int size, std::string const& what)
{
    return resultLine("int", "nDataSizeInBytes;", "size of the data that follows + 4")
           + resultLine("int", "nCountSizeInBytes;", "8")
           + resultLine("int", "nCount;", "number of entries that follow")
           + "\tThen for each entry:\n"
           + resultLine("int", "nDataSizeInBytes;", std::to_string(size + 4))
           + resultLine("", record, what + " (" + std::to_string(size) + " bytes)");
}

std::string recordResultHelp(std::string const& record, unsigned int size)
{
    return resultLine("int", "nDataSizeInBytes;", std::to_string(size + 4))
           + resultLine("", record, "image of the record (" + std::to_string(size) + " bytes)");
}
