#include "scripting/CsvFile.h"

#include "core/Token.h"
#include "core/TokenCmd.h"

namespace {

constexpr char kBlanks[] = " \t";
constexpr char kQuotes[] = "'\"";

} // namespace

CsvFile::~CsvFile()
{
    closeFile();
}

void CsvFile::base_init()
{
    file = nullptr;
}

bool CsvFile::openFile(std::string const& path, std::string const& mode, std::string& err)
{
    closeFile();
    return Token::safe_fopen(&file, path, mode, err);
}

void CsvFile::closeFile()
{
    if (file)
        std::fclose(file);
    file = nullptr;
}

bool CsvFile::getNextLine()
{
    std::string next;
    if (!TokenCmd::readLineFromFilePointer(file, next))
        return false;
    line.swap(next);
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
// that cannot be closed takes the rest of the line.
std::string CsvFile::parseNextSkipQuotedString(std::string& rest, std::string const& delimiter)
{
    std::string::size_type cut = rest.find_first_of(delimiter + kQuotes);
    if (cut == std::string::npos)
        return rest;
    if (delimiter.find(rest[cut]) == std::string::npos) {
        std::string::size_type const closing = rest.find(rest[cut], cut + 1);
        cut = closing == std::string::npos ? closing : rest.find_first_of(delimiter, closing + 1);
        if (cut == std::string::npos) {
            std::string all;
            all.swap(rest);
            return all;
        }
    }
    std::string cell = rest.substr(0, cut);
    rest.erase(0, cut + 1);
    return cell;
}

std::string CsvFile::removeLeadingAndTrailingWhitespace(std::string const& text)
{
    std::string::size_type const first = text.find_first_not_of(kBlanks);
    if (first == std::string::npos)
        return std::string();
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Past the last cell the last call's answer stands: a missing column is never
// reported. Once `rest` stops changing every further call would give the same
// answer, so the walk ends there; that keeps a huge index cheap.
std::string CsvFile::getColumnValueByIndex(std::string const& line, unsigned index)
{
    std::string rest = line;
    std::string value;
    unsigned const calls = index + 1u; // 0xFFFFFFFF wraps to no call at all
    for (unsigned i = 0; i < calls; ++i) {
        std::string::size_type const before = rest.size();
        value = parseNextSkipQuotedString(rest, ",");
        if (rest.size() == before)
            break;
    }
    return removeLeadingAndTrailingWhitespace(value);
}
