#include "scripting/CsvReportColumn.h"

#include <utility>

#include "scripting/CsvFile.h"

CsvReportColumn::CsvReportColumn()
{
    init();
}

CsvReportColumn::CsvReportColumn(CSV_REPORT_COLUMN_TYPE type, std::string groupTitle, std::string columnTitle,
                                 int32_t sampleIndex, std::string matchText, std::vector<CSV_SAMPLE> samples)
    : type(type), groupTitle(std::move(groupTitle)), columnTitle(std::move(columnTitle)), sampleIndex(sampleIndex),
      matchText(std::move(matchText)), samples(std::move(samples))
{}

void CsvReportColumn::init()
{
    type = COLUMN_NONE;
    groupTitle.clear();
    columnTitle.clear();
    sampleIndex = -1;
    matchText.clear();
    samples.clear();
}

bool CsvReportColumn::acceptsFile(std::string const& fileIdentification) const
{
    CsvLineCells const cells(fileIdentification);
    std::string const kind = cells.valueAt(0);
    switch (type) {
    case COLUMN_ANY_PORT:
        return kind == "PORT";
    case COLUMN_FC_PORT:
        return kind == "PORT" && cells.valueAt(1).rfind('F', 0) == 0;
    case COLUMN_GE_PORT:
        return kind == "PORT" && cells.valueAt(1).rfind('G', 0) == 0;
    case COLUMN_TARGET_LUNS:
        return kind == "LUN" && cells.valueAt(3) == matchText;
    default:
        return false;
    }
}

void CsvReportColumn::putSample(std::string const& fileIdentification, double value)
{
    if (acceptsFile(fileIdentification))
        putAcceptedSample(fileIdentification, value);
}

// Files of the same first line share one sample: a running mean in which the
// latest value weighs half.
void CsvReportColumn::putAcceptedSample(std::string const& fileIdentification, double value)
{
    for (CSV_SAMPLE& sample : samples) {
        if (sample.fileIdentification == fileIdentification) {
            sample.value = (value + sample.value) * 0.5;
            return;
        }
    }
    samples.push_back(CSV_SAMPLE{fileIdentification, value});
}

double CsvReportColumn::sumSamples() const
{
    double sum = 0.0;
    for (CSV_SAMPLE const& sample : samples)
        sum += sample.value;
    return sum;
}
