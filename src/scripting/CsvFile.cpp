#include "scripting/CsvFile.h"

#include "core/Token.h"

namespace {

constexpr char kBlanks[] = " \t";

} // namespace

CsvFile::~CsvFile()
{
    closeFile();
}

void CsvFile::base_init()
{
    file = nullptr;
    reader.reset(nullptr);
}

bool CsvFile::openFile(std::string const& path, std::string const& mode, std::string& err)
{
    closeFile();
    if (!Token::safe_fopen(&file, path, mode, err))
        return false;
    // Reads go through the block reader's own buffer; a second one in stdio
    // would only double the memory of a merge of thousands of files.
    if (mode.rfind('r', 0) == 0)
        std::setvbuf(file, nullptr, _IONBF, 0);
    reader.reset(file);
    return true;
}

void CsvFile::closeFile()
{
    if (file)
        std::fclose(file);
    file = nullptr;
    reader.reset(nullptr);
}

bool CsvFile::getNextLine()
{
    if (!reader.readLine(nextLine))
        return false;
    line.swap(nextLine);
    return true;
}

// Without the delimiter, `rest` is handed back whole and left as it is: a
// caller looping on a non-empty `rest` needs a test of its own to stop.
std::string CsvFile::parseNext(std::string& rest, std::string const& delimiter)
{
    std::string::size_type const at = rest.find(delimiter);
    if (at == std::string::npos)
        return rest;
    std::string cell = rest.substr(0, at);
    rest.erase(0, at + 1);
    return cell;
}

// One quoted stretch per cell keeps its delimiters and its quotes; anything
// that cannot be closed takes the rest of the line. The scan compares bytes
// itself: rows are cut cell by cell, and a search call per byte would cost
// more than the cutting.
std::string_view CsvFile::cutSkippingQuotes(std::string_view& rest, std::string_view delimiter)
{
    auto const isDelimiter = [delimiter](char c) {
        return delimiter.size() == 1 ? c == delimiter[0] : delimiter.find(c) != std::string_view::npos;
    };
    std::string_view::size_type cut = 0;
    while (cut < rest.size() && rest[cut] != '\'' && rest[cut] != '"' && !isDelimiter(rest[cut]))
        ++cut;
    if (cut < rest.size() && !isDelimiter(rest[cut])) {
        std::string_view::size_type const closing = rest.find(rest[cut], cut + 1);
        cut = closing == std::string_view::npos ? rest.size() : closing + 1;
        while (cut < rest.size() && !isDelimiter(rest[cut]))
            ++cut;
        if (cut == rest.size()) {
            std::string_view const all = rest;
            rest = std::string_view();
            return all;
        }
    }
    if (cut == rest.size())
        return rest;
    std::string_view const cell = rest.substr(0, cut);
    rest.remove_prefix(cut + 1);
    return cell;
}

std::string CsvFile::parseNextSkipQuotedString(std::string& rest, std::string const& delimiter)
{
    std::string_view remaining(rest);
    std::string cell(cutSkippingQuotes(remaining, delimiter));
    rest.erase(0, rest.size() - remaining.size());
    return cell;
}

std::string CsvFile::removeLeadingAndTrailingWhitespace(std::string const& text)
{
    std::string::size_type const first = text.find_first_not_of(kBlanks);
    if (first == std::string::npos)
        return std::string();
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string CsvFile::getColumnValueByIndex(std::string const& line, unsigned index)
{
    return CsvLineCells(line).valueAt(index);
}

// Past the last cell the last cut's answer stands: a missing column is never
// reported. Once the rest stops changing every further cut would give the
// same answer, so the walk ends there; that keeps a huge index cheap.
CsvLineCells::CsvLineCells(std::string const& line)
{
    std::string_view rest(line);
    for (;;) {
        std::string_view::size_type const before = rest.size();
        values.push_back(
            CsvFile::removeLeadingAndTrailingWhitespace(std::string(CsvFile::cutSkippingQuotes(rest, ","))));
        if (rest.size() == before)
            break;
    }
}

// Index 0xFFFFFFFF asks for no cut at all, which leaves the answer empty.
std::string const& CsvLineCells::valueAt(unsigned index) const
{
    static std::string const none;
    if (index == 0xFFFFFFFFu || values.empty())
        return none;
    return index < values.size() ? values[index] : values.back();
}
