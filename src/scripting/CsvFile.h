// A small line reader for comma separated files: one open file, the line
// read last, and helpers that cut cells out of a line by repeated splitting.
// Nothing is kept as a table, so files of any length cost one line of memory.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "scripting/BlockLineReader.h"

class CsvFile {
public:
    CsvFile() = default;
    virtual ~CsvFile();
    CsvFile(CsvFile const&) = delete;
    CsvFile& operator=(CsvFile const&) = delete;

    // Forgets the handle without closing it.
    void base_init();

    bool openFile(std::string const& path, std::string const& mode, std::string& err);
    void closeFile();
    bool isOpen() const { return file != nullptr; }

    // False at the end of the file, also for a last line without its line
    // end; the current line then keeps what it held.
    bool getNextLine();
    std::string const& currentLine() const { return line; }
    // Whether the end came from a failed read (a folder, a device error)
    // rather than from the end of the file, and its errno.
    bool readFailed() const { return reader.readError() != 0; }
    int readError() const { return reader.readError(); }

    static std::string parseNext(std::string& rest, std::string const& delimiter);
    static std::string parseNextSkipQuotedString(std::string& rest, std::string const& delimiter);
    static std::string removeLeadingAndTrailingWhitespace(std::string const& text);
    static std::string getColumnValueByIndex(std::string const& line, unsigned index);

    // The cut of parseNextSkipQuotedString on a view: `rest` becomes the
    // part behind the cut, and the cell is a view into the same text.
    static std::string_view cutSkippingQuotes(std::string_view& rest, std::string_view delimiter);

protected:
    FILE* file = nullptr;
    std::string line;

private:
    BlockLineReader reader;
    std::string nextLine; // kept to keep its capacity from line to line
};

// The answers of getColumnValueByIndex for every index of one line, from a
// single walk: commands that look up many columns of a row pay for the row
// once instead of once per column.
class CsvLineCells {
public:
    explicit CsvLineCells(std::string const& line);

    std::string const& valueAt(unsigned index) const;

private:
    std::vector<std::string> values; // one per cut, trimmed; the last one stands for all beyond
};
