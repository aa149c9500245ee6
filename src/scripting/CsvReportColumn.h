// One column of the merged statistics report: which files feed it, which of
// their values it takes, and the latest value of every file that fed it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class CsvReportColumn {
public:
    // Which files feed the column, by their first line.
    enum CSV_REPORT_COLUMN_TYPE : int32_t {
        COLUMN_NONE = 0,
        COLUMN_ANY_PORT = 1,   // cell 0 "PORT"
        COLUMN_FC_PORT = 2,    // cell 0 "PORT", cell 1 beginning with F
        COLUMN_GE_PORT = 3,    // cell 0 "PORT", cell 1 beginning with G
        COLUMN_TARGET_LUNS = 4 // cell 0 "LUN", cell 3 the match text
    };

    struct CSV_SAMPLE {
        std::string fileIdentification;
        double value = 0.0;
    };

    CsvReportColumn();
    CsvReportColumn(CSV_REPORT_COLUMN_TYPE type, std::string groupTitle, std::string columnTitle, int32_t sampleIndex,
                    std::string matchText, std::vector<CSV_SAMPLE> samples = {});

    void init();

    bool acceptsFile(std::string const& fileIdentification) const;
    void putSample(std::string const& fileIdentification, double value);
    // For a caller that has already asked acceptsFile once per file.
    void putAcceptedSample(std::string const& fileIdentification, double value);
    // A file that has ended still counts with its last value.
    double sumSamples() const;

    CSV_REPORT_COLUMN_TYPE type;
    std::string groupTitle;
    std::string columnTitle;
    int32_t sampleIndex;
    std::string matchText;
    std::vector<CSV_SAMPLE> samples;
};
