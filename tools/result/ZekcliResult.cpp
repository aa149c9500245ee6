// zekcli-result FILE [--json|--csv]: shows what a -result file holds, record
// by record: the command, its completion status, and its payload decoded by
// record type.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "PayloadDecoder.h"
#include "ResultFile.h"
#include "common/JsonText.h"
#include "core/CmdAction.h"
#include "core/CmdItem.h"
#include "core/ZekcliReturn.h"

namespace {

enum class Format { Text, Json, Csv };

constexpr int kDecoded = 0;
constexpr int kUnreadable = 1;
constexpr int kUsage = 2;

char const kUsageText[] = "usage: zekcli-result FILE [--json|--csv]\n";

std::string vocabularyWord(std::string const& word, int32_t code)
{
    return word.empty() ? "#" + std::to_string(code) : word;
}

std::string actionWord(int32_t code)
{
    return vocabularyWord(CmdAction::table().textFromVal(static_cast<CmdAction::CMD_ACTION>(code)), code);
}

std::string itemWord(int32_t code)
{
    return vocabularyWord(CmdItem::table().textFromVal(static_cast<CmdItem::CMD_ITEM>(code)), code);
}

// The command line's own codes have words here; the library's codes are
// explained by the library, which this program does not load.
std::string statusText(int32_t status)
{
    if (char const* const text = zekcliReturnValueText(status))
        return text;
    return "management library code " + std::to_string(status) +
        " (\"hostcli -zek retval cli -rv=" + std::to_string(status) + "\" explains it)";
}

DecodedValue recordValue(ResultRecord const& record)
{
    DecodedValue value;
    value.members.emplace_back("offset", DecodedValue::number(std::to_string(record.offset)));
    value.members.emplace_back("action", DecodedValue::text(actionWord(record.action)));
    value.members.emplace_back("item", DecodedValue::text(itemWord(record.item)));
    value.members.emplace_back("action_code", DecodedValue::number(std::to_string(record.action)));
    value.members.emplace_back("item_code", DecodedValue::number(std::to_string(record.item)));
    DecodedValue version{DecodedValue::List, {}, {}, {}};
    for (uint32_t part : record.apiVersion)
        version.items.push_back(DecodedValue::number(std::to_string(part)));
    value.members.emplace_back("api_version", version);
    value.members.emplace_back("status", DecodedValue::number(std::to_string(record.status)));
    value.members.emplace_back("status_text", DecodedValue::text(statusText(record.status)));
    if (!record.payload.empty())
        value.members.emplace_back("payload", decodePayload(itemWord(record.item), record.payload));
    return value;
}

DecodedValue const* member(DecodedValue const& object, std::string const& name)
{
    for (auto const& [key, value] : object.members)
        if (key == name)
            return &value;
    return nullptr;
}

std::string asJson(std::string const& file, std::vector<ResultRecord> const& records)
{
    DecodedValue document;
    document.members.emplace_back("file", DecodedValue::text(file));
    DecodedValue list{DecodedValue::List, {}, {}, {}};
    for (ResultRecord const& record : records)
        list.items.push_back(recordValue(record));
    document.members.emplace_back("records", list);
    return toJson(document, 0) + "\n";
}

std::string csvCell(std::string const& text)
{
    if (text.find_first_of(",\"\n\r") == std::string::npos)
        return text;
    std::string out = "\"";
    for (char c : text)
        out += c == '"' ? std::string("\"\"") : std::string(1, c);
    return out + "\"";
}

// Per decoded record one line; a header line comes first and again whenever
// the record type changes. Records without payload give a line with the
// command and its status only.
std::string asCsv(std::vector<ResultRecord> const& records)
{
    std::string out;
    std::string lastHeader;
    auto emit = [&](std::vector<std::pair<std::string, std::string>> const& cells) {
        std::string header, line;
        for (size_t i = 0; i < cells.size(); ++i) {
            header += (i ? "," : "") + csvCell(cells[i].first);
            line += (i ? "," : "") + csvCell(cells[i].second);
        }
        if (header != lastHeader)
            out += header + "\n";
        lastHeader = header;
        out += line + "\n";
    };
    for (ResultRecord const& record : records) {
        std::vector<std::pair<std::string, std::string>> const head{
            {"action", actionWord(record.action)},
            {"item", itemWord(record.item)},
            {"status", std::to_string(record.status)},
        };
        if (record.payload.empty()) {
            emit(head);
            continue;
        }
        DecodedValue const payload = decodePayload(itemWord(record.item), record.payload);
        for (DecodedValue const& decoded : member(payload, "records")->items) {
            std::vector<std::pair<std::string, std::string>> cells = head;
            cells.emplace_back("record", member(decoded, "record")->scalar);
            DecodedValue const* const fields = member(decoded, "fields");
            flatten(fields ? *fields : *member(decoded, "bytes"), fields ? "" : "bytes", cells);
            emit(cells);
        }
    }
    return out;
}

std::string asText(std::vector<ResultRecord> const& records)
{
    std::string out;
    for (size_t i = 0; i < records.size(); ++i) {
        ResultRecord const& record = records[i];
        out += "Record " + std::to_string(i + 1) + ": " + actionWord(record.action) + " " + itemWord(record.item) +
            "\n  Status: " + std::to_string(record.status) + " " + statusText(record.status) + "\n";
        if (record.payload.empty())
            continue;
        DecodedValue const payload = decodePayload(itemWord(record.item), record.payload);
        for (DecodedValue const& decoded : member(payload, "records")->items) {
            out += "  " + member(decoded, "record")->scalar + "\n";
            std::vector<std::pair<std::string, std::string>> cells;
            DecodedValue const* const fields = member(decoded, "fields");
            flatten(fields ? *fields : *member(decoded, "bytes"), fields ? "" : "bytes", cells);
            for (auto const& [name, cell] : cells)
                out += "    " + name + " = " + cell + "\n";
        }
    }
    return out;
}

bool readFile(std::string const& path, std::vector<unsigned char>& bytes, std::string& err)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        err = std::strerror(errno);
        return false;
    }
    bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    if (in.bad()) {
        err = "read error";
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<std::string> const args(argv + 1, argv + argc);
    if (args.size() == 1 && (args[0] == "--help" || args[0] == "-h")) {
        std::fputs(kUsageText, stdout);
        return kDecoded;
    }
    std::map<std::string, Format> const formats{{"--json", Format::Json}, {"--csv", Format::Csv}};
    if (args.empty() || args.size() > 2 || (args.size() == 2 && !formats.count(args[1]))) {
        std::fputs(kUsageText, stderr);
        return kUsage;
    }
    Format const format = args.size() == 2 ? formats.at(args[1]) : Format::Text;
    std::vector<unsigned char> bytes;
    std::vector<ResultRecord> records;
    std::string err;
    if (!readFile(args[0], bytes, err)) {
        std::fprintf(stderr, "zekcli-result: cannot read %s: %s\n", args[0].c_str(), err.c_str());
        return kUnreadable;
    }
    if (!parseResultFile(bytes, records, err)) {
        std::fprintf(stderr, "zekcli-result: %s is not a readable result file: %s\n", args[0].c_str(), err.c_str());
        return kUnreadable;
    }
    std::string const out = format == Format::Json ? asJson(args[0], records)
        : format == Format::Csv                    ? asCsv(records)
                                                   : asText(records);
    return std::fwrite(out.data(), 1, out.size(), stdout) == out.size() && std::fflush(stdout) == 0 ? kDecoded
                                                                                                    : kUnreadable;
}
