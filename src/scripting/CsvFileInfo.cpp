#include "scripting/CsvFileInfo.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <string_view>

namespace {

struct FileTypePrefix {
    char const* prefix;
    CsvFileInfo::CSV_FILE_TYPE type;
};

// Compared in this order: the first prefix that fits decides.
constexpr FileTypePrefix kFileTypePrefixes[] = {
    {"PORT,FC", CsvFileInfo::CSV_FILE_PORT_FC}, {"PORT,GE", CsvFileInfo::CSV_FILE_PORT_GE},
    {"LUN", CsvFileInfo::CSV_FILE_LUN},         {"FC_STAT", CsvFileInfo::CSV_FILE_FC_STAT},
    {"IS_STAT", CsvFileInfo::CSV_FILE_IS_STAT}, {"FCIP_STAT", CsvFileInfo::CSV_FILE_FCIP_STAT},
};

using CalendarParts = std::array<int, 3>;

// Larger numbers cannot name a point in any calendar mktime converts, and
// stopping here keeps the arithmetic on them far from overflow.
constexpr int kLargestCalendarNumber = 999999999;

std::string_view trimmedBlanks(std::string_view text)
{
    std::string_view::size_type const first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return std::string_view();
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

bool readCalendarNumber(std::string_view text, int& out)
{
    long long value = 0;
    for (char const c : text) {
        if (c < '0' || c > '9')
            return false;
        value = value * 10 + (c - '0');
        if (value > kLargestCalendarNumber)
            return false;
    }
    out = static_cast<int>(value);
    return true;
}

// Up to three numbers separated by `separator`; a part that is absent or
// empty takes its value from `missing`. More parts, or anything but digits
// (blanks and tabs around them aside), cannot be converted.
bool readCalendarParts(std::string_view cell, char separator, CalendarParts const& missing, CalendarParts& out)
{
    out = missing;
    for (std::size_t count = 0;; ++count) {
        std::string_view::size_type const end = cell.find(separator);
        std::string_view const part = trimmedBlanks(cell.substr(0, end));
        if (count == out.size())
            return false;
        if (!part.empty() && !readCalendarNumber(part, out[count]))
            return false;
        if (end == std::string_view::npos)
            return true;
        cell.remove_prefix(end + 1);
    }
}

// The cell from `from` up to the next comma; `from` moves behind that comma,
// or to the end of the text.
std::string_view nextCell(std::string_view text, std::string_view::size_type& from)
{
    if (from >= text.size()) {
        from = text.size();
        return std::string_view();
    }
    std::string_view::size_type const comma = text.find(',', from);
    std::string_view const cell =
        text.substr(from, comma == std::string_view::npos ? std::string_view::npos : comma - from);
    from = comma == std::string_view::npos ? text.size() : comma + 1;
    return cell;
}

} // namespace

CsvFileInfo::CsvFileInfo()
{
    init();
}

void CsvFileInfo::init()
{
    fileType = CSV_FILE_UNKNOWN;
    sampleTime.init();
    sampleValues.clear();
    fileIdentification.clear();
    titleLines.clear();
    sampleUsed = false;
}

CsvFileInfo::CSV_FILE_TYPE CsvFileInfo::fileTypeOfFirstLine(std::string const& firstLine)
{
    for (FileTypePrefix const& known : kFileTypePrefixes) {
        if (firstLine.rfind(known.prefix, 0) == 0)
            return known.type;
    }
    return CSV_FILE_UNKNOWN;
}

bool CsvFileInfo::csvOpenFile(std::string const& path, std::string& err)
{
    csvCloseFile();
    init();
    if (!openFile(path, "r", err)) {
        csvCloseFile();
        return false;
    }
    if (!readIdentification() || !readTitleLines() || !getNextSample()) {
        csvCloseFile();
        return false;
    }
    return true;
}

bool CsvFileInfo::readIdentification()
{
    if (!getNextLine() || line.empty())
        return false;
    fileIdentification = line;
    fileType = fileTypeOfFirstLine(line);
    return fileType != CSV_FILE_UNKNOWN;
}

// The titles run up to the first empty line, which must come.
bool CsvFileInfo::readTitleLines()
{
    while (getNextLine()) {
        if (line.empty())
            return true;
        if (titleLines.size() == kMaxTitleLines)
            return false;
        titleLines.push_back(line);
    }
    return false;
}

bool CsvFileInfo::getNextSample()
{
    if (!getNextLine())
        return false;
    std::string_view const text(line);
    std::string_view::size_type from = 0;
    std::string_view const dateCell = nextCell(text, from);
    std::string_view const timeCell = nextCell(text, from);
    CalendarParts date{};
    CalendarParts clock{};
    // A missing year leaves the year field at 0.
    if (!readCalendarParts(dateCell, '/', {1, 1, 1900}, date) || !readCalendarParts(timeCell, ':', {1, 1, 1}, clock))
        return false;
    std::tm local{};
    local.tm_mon = date[0] - 1;
    local.tm_mday = date[1];
    local.tm_year = date[2] - 1900;
    local.tm_hour = clock[0];
    local.tm_min = clock[1];
    local.tm_sec = clock[2];
    // The clock as it read in its place and season; mktime fills the
    // weekday only when it can convert.
    local.tm_isdst = -1;
    local.tm_wday = -1;
    sampleTime.initFromLocalTimeStruct(&local);
    if (local.tm_wday < 0)
        return false;
    appendSampleValues(line, from);
    sampleUsed = false;
    return true;
}

// strtod stops at the comma by itself, so no cell needs copying.
void CsvFileInfo::appendSampleValues(std::string const& text, std::string::size_type from)
{
    bool const firstValues = sampleValues.empty();
    while (from < text.size()) {
        if (!firstValues && sampleValues.size() >= kGrowingValues)
            return;
        sampleValues.push_back(std::strtod(text.c_str() + from, nullptr));
        std::string::size_type const comma = text.find(',', from);
        from = comma == std::string::npos ? text.size() : comma + 1;
    }
}

std::string CsvFileInfo::getFileIdentificationPart(unsigned index) const
{
    return getColumnValueByIndex(fileIdentification, index);
}

void CsvFileInfo::csvCloseFile()
{
    closeFile();
}
