// A small line reader for comma separated files: one open file, the line
// read last, and helpers that cut cells out of a line by repeated splitting.
// Nothing is kept as a table, so files of any length cost one line of memory.
#pragma once

#include <cstdio>
#include <string>

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

    static std::string parseNext(std::string& rest, std::string const& delimiter);
    static std::string parseNextSkipQuotedString(std::string& rest, std::string const& delimiter);
    static std::string removeLeadingAndTrailingWhitespace(std::string const& text);
    static std::string getColumnValueByIndex(std::string const& line, unsigned index);

protected:
    FILE* file = nullptr;
    std::string line;
};
