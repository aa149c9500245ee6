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
           "\tLUN number on the target.\n"
           "-vpgindex=<index>\n"
           "\tVolume path group index, which tells paths with the same target and\n"
           "\tLUN number apart.\n"
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

// A result layout line: what stands in the file, then its meaning, in the
// columns that the common result header help uses.
std::string resultLine(std::string const& field, std::string const& meaning)
{
    char line[200];
    std::snprintf(line, sizeof line, "\t%-27s %s\n", field.c_str(), meaning.c_str());
    return line;
}

std::string intField(char const* name)
{
    return std::string("int    ") + name;
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
    return resultLine(intField("nDataSizeInBytes;"), "size of the data that follows + 4") +
        resultLine(intField("nCountSizeInBytes;"), "8") +
        resultLine(intField("nCount;"), "number of entries that follow") + "\tThen for each entry:\n" +
        resultLine(intField("nDataSizeInBytes;"), std::to_string(size + 4)) +
        resultLine(record + " image;", what + " (" + std::to_string(size) + " bytes)");
}

std::string recordResultHelp(std::string const& record, unsigned int size)
{
    return resultLine(intField("nDataSizeInBytes;"), std::to_string(size + 4)) +
        resultLine(record + " image;", "the record (" + std::to_string(size) + " bytes)");
}
