#include "scripting/CsvFileInfo.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

#include "core/Token.h"
#include "scripting/CsvOutputFile.h"

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

// ---- writing ----------------------------------------------------------------

namespace {

void appendCell(std::string& row, char const* format, double value)
{
    char cell[64];
    int const length = std::snprintf(cell, sizeof cell, format, value);
    row.append(cell, static_cast<std::size_t>(std::clamp(length, 0, static_cast<int>(sizeof cell) - 1)));
    row += ',';
}

void appendCells(std::string& row, std::vector<double> const& values)
{
    for (double value : values)
        appendCell(row, "%f", value);
}

// The count with at most three digits, as the files have always shown it.
void appendCount(std::string& row, unsigned count)
{
    char cell[CsvFileInfo::kCountDigits + 1];
    std::snprintf(cell, sizeof cell, "%d", static_cast<int>(count));
    row += cell;
    row += ',';
}

// Each of the first `groups` names, then its values from `next` up to the
// end mark.
void appendGroups(std::string& row, std::vector<std::string> const& names, std::size_t groups,
                  std::vector<double> const& values, std::size_t next)
{
    for (std::size_t group = 0; group < groups && group < names.size(); ++group) {
        row += names[group];
        row += ',';
        for (; next < values.size() && values[next] != CsvFileInfo::kEndOfGroup; ++next)
            appendCell(row, "%f", values[next]);
        ++next; // past the end mark
    }
}

// The LUN totals and groups, and the mirror groups.
void appendLunGroups(std::string& row, unsigned count, std::vector<std::string> const& names,
                     std::vector<double> const& values, std::vector<std::string> const& mirrorNames,
                     std::vector<double> const& mirrorValues)
{
    for (std::size_t i = 0; i < 2; ++i)
        appendCell(row, "%f", i < values.size() ? values[i] : 0.0);
    appendGroups(row, names, count, values, 2);
    appendGroups(row, mirrorNames, mirrorNames.size(), mirrorValues, 0);
}

off_t fileLength(FILE* file)
{
    struct stat about {};
    return fstat(fileno(file), &about) == 0 ? about.st_size : 0;
}

// Writes `text` with one fwrite; on failure the file is cut back to where
// it was, so that no partial row stays behind.
bool writeWholeOrNothing(std::string const& path, char const* mode, std::string const& text, std::string& err)
{
    FILE* file = nullptr;
    if (!Token::safe_fopen(&file, path, mode, err))
        return false;
    off_t const before = fileLength(file);
    errno = 0;
    bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size() && std::fflush(file) == 0;
    if (!written) {
        err = CsvOutputFile::writeFailureText(path);
        (void)ftruncate(fileno(file), before);
    }
    errno = 0;
    if (std::fclose(file) != 0 && written) {
        err = CsvOutputFile::writeFailureText(path);
        (void)truncate(path.c_str(), before);
        written = false;
    }
    return written;
}

bool exists(std::string const& path)
{
    struct stat about {};
    return stat(path.c_str(), &about) == 0;
}

} // namespace

std::string CsvFileInfo::rowStart(PTime const& time, std::string const& adapterId)
{
    return time.displayLocalDate() + "," + time.displayLocalTime() + "," + adapterId + ",";
}

bool CsvFileInfo::appendRow(std::string const& folder, std::string const& fileName, std::string const& title,
                            std::string const& row, bool first, std::string& err)
{
    std::string const path = folder + "/" + fileName;
    std::string output;
    if (first) {
        // One level only: a folder whose parent is missing shows in the
        // open's message.
        if (!exists(folder))
            (void)mkdir(folder.c_str(), 0755);
        output = title + "\n";
    } else if (!exists(path)) {
        output = title + "\n"; // removed during the run: it comes back whole
    }
    output += row;
    output += '\n';
    return writeWholeOrNothing(path, first ? "w" : "a", output, err);
}

bool CsvFileInfo::csvAppendFile(std::string const& folder, std::string const& fileName, std::string const& adapterId,
                                std::string const& title, PTime const& time, std::vector<long long> const& values,
                                bool first, std::string& err)
{
    std::string row = rowStart(time, adapterId);
    for (long long value : values) {
        row += std::to_string(value);
        row += ',';
    }
    return appendRow(folder, fileName, title, row, first, err);
}

bool CsvFileInfo::csvAppendFile(std::string const& folder, std::string const& fileName, std::string const& adapterId,
                                std::string const& title, PTime const& time, std::vector<double> const& values,
                                bool first, std::string& err)
{
    std::string row = rowStart(time, adapterId);
    appendCells(row, values);
    return appendRow(folder, fileName, title, row, first, err);
}

bool CsvFileInfo::csvAppendFile(std::string const& folder, std::string const& fileName, std::string const& adapterId,
                                std::string const& title, PTime const& time, unsigned count,
                                std::vector<double> const& global, std::vector<std::string> const& names,
                                std::vector<double> const& values, std::vector<std::string> const& mirrorNames,
                                std::vector<double> const& mirrorValues, bool first, std::string& err)
{
    std::string row = rowStart(time, adapterId);
    appendCells(row, global);
    appendCount(row, count);
    appendLunGroups(row, count, names, values, mirrorNames, mirrorValues);
    return appendRow(folder, fileName, title, row, first, err);
}

bool CsvFileInfo::csvAppendFile(std::string const& folder, std::string const& fileName, std::string const& adapterId,
                                std::string const& title, PTime const& time, unsigned count,
                                std::vector<std::string> const& names, std::vector<double> const& values,
                                std::vector<std::string> const& mirrorNames, std::vector<double> const& mirrorValues,
                                bool first, std::string& err)
{
    std::string row = rowStart(time, adapterId);
    if (count != 0) {
        appendCount(row, count);
        appendLunGroups(row, count, names, values, mirrorNames, mirrorValues);
    } else {
        appendGroups(row, mirrorNames, mirrorNames.size(), mirrorValues, 0);
    }
    return appendRow(folder, fileName, title, row, first, err);
}

bool CsvFileInfo::csvAppendFile(std::string const& path, std::string const& title1, std::string const& title2,
                                PTime const& time, std::vector<double> const& values, std::string& err)
{
    std::string output;
    if (!exists(path))
        output = title1 + "\n" + title2 + "\n";
    output += time.displayLocalDate() + "," + time.displayLocalTime() + ",";
    appendCells(output, values);
    output += '\n';
    return writeWholeOrNothing(path, "a", output, err);
}
