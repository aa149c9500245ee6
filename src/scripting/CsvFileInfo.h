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
    // The statistics commands' row writers (csvAppendFile and its overloads)
    // belong here.

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
};
