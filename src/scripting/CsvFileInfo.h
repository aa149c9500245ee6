// One statistics CSV file as the merge reads it: what kind of file it is (by
// its first line), its title lines, and its current sample. The writers of the
// statistics commands append rows to files of the same shapes and share this
// class.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "records/PTime.h"
#include "scripting/CsvFile.h"

class CsvFileInfo : public CsvFile {
public:
    // By the beginning of line 1.
    enum CSV_FILE_TYPE : int32_t {
        CSV_FILE_UNKNOWN = 0,
        CSV_FILE_PORT_FC = 1,
        CSV_FILE_PORT_GE = 2,
        CSV_FILE_LUN = 3,
        CSV_FILE_FC_STAT = 4,
        CSV_FILE_IS_STAT = 5,
        CSV_FILE_FCIP_STAT = 6,
    };

    // Samples after the first append their values behind the first one's, so
    // an index always reads the first sample's cell. Nothing reads past this
    // index, so later samples stop appending here: a file of a million rows
    // then costs no more memory than one of ten.
    static constexpr std::size_t kGrowingValues = 4;

    // A file whose titles run on this long is not a statistics file.
    static constexpr std::size_t kMaxTitleLines = 1000;

    CsvFileInfo();

    void init();

    // ---- reading ----------------------------------------------------------

    // Opens, identifies, reads the titles and the first sample; false (with
    // the reason of a failed open in `err`) for anything that is not a
    // statistics file with at least one sample.
    bool csvOpenFile(std::string const& path, std::string& err);
    // False at the end of the file and for a line whose date or time cannot
    // be converted.
    bool getNextSample();
    std::string getFileIdentificationPart(unsigned index) const;
    void csvCloseFile();

    static CSV_FILE_TYPE fileTypeOfFirstLine(std::string const& firstLine);

    // ---- writing ----------------------------------------------------------
    // The statistics commands append one row per cycle. Each row is built
    // whole in memory and written with one fwrite; a write that fails is
    // taken back (the file is cut to its former length), so that a file never
    // holds a partial row. False with the reason in `err`: the text of
    // Token::safe_fopen, or "Unable to write file ..." for a failed write.

    // The files of one run of the cache statistics: `folder` is made (one
    // level) on the first cycle if it does not exist, and the first cycle
    // replaces a file of the same name. A file that does not exist gets the
    // title line first. The row: date, time, adapter id, then the values.
    static bool csvAppendFile(std::string const& folder, std::string const& fileName, std::string const& adapterId,
                              std::string const& title, PTime const& time, std::vector<long long> const& values,
                              bool first, std::string& err);
    static bool csvAppendFile(std::string const& folder, std::string const& fileName, std::string const& adapterId,
                              std::string const& title, PTime const& time, std::vector<double> const& values,
                              bool first, std::string& err);
    // The summary file: the global values, the count of cached LUNs, then
    // the two LUN totals (values[0], values[1]), each LUN's name and its
    // values up to the end mark, and each mirror LUN likewise.
    static bool csvAppendFile(std::string const& folder, std::string const& fileName, std::string const& adapterId,
                              std::string const& title, PTime const& time, unsigned count,
                              std::vector<double> const& global, std::vector<std::string> const& names,
                              std::vector<double> const& values, std::vector<std::string> const& mirrorNames,
                              std::vector<double> const& mirrorValues, bool first, std::string& err);
    // The LUN file: as the summary without global values, and without the
    // count and totals when no LUN is cached.
    static bool csvAppendFile(std::string const& folder, std::string const& fileName, std::string const& adapterId,
                              std::string const& title, PTime const& time, unsigned count,
                              std::vector<std::string> const& names, std::vector<double> const& values,
                              std::vector<std::string> const& mirrorNames, std::vector<double> const& mirrorValues,
                              bool first, std::string& err);
    // The file of one LUN's statistics: appended to, never made anew, in a
    // folder that must exist; the two title parts go first into a new file.
    static bool csvAppendFile(std::string const& path, std::string const& title1, std::string const& title2,
                              PTime const& time, std::vector<double> const& values, std::string& err);

    // Ends the values of one LUN in the value lists of the overloads above;
    // it never appears in a file.
    static constexpr double kEndOfGroup = -1.0;
    // The count of cached LUNs shows at most this many digits.
    static constexpr std::size_t kCountDigits = 3;

    int32_t fileType = CSV_FILE_UNKNOWN;
    PTime sampleTime;
    std::vector<double> sampleValues;
    std::string fileIdentification;
    std::vector<std::string> titleLines;
    bool sampleUsed = false;

private:
    bool readIdentification();
    bool readTitleLines();
    void appendSampleValues(std::string const& text, std::string::size_type from);

    // Date, time, adapter id.
    static std::string rowStart(PTime const& time, std::string const& adapterId);
    static bool appendRow(std::string const& folder, std::string const& fileName, std::string const& title,
                          std::string const& row, bool first, std::string& err);
};
