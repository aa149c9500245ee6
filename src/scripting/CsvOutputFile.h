// A file that a command writes in many pieces (a merged table, a generated
// script): written through one large buffer, with the reason of a failed
// write kept for the command's message.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

class CsvOutputFile {
public:
    static constexpr std::size_t kBufferSize = 1 << 16;

    CsvOutputFile() = default;
    ~CsvOutputFile();
    CsvOutputFile(CsvOutputFile const&) = delete;
    CsvOutputFile& operator=(CsvOutputFile const&) = delete;

    // Creates or empties the file; false with the reason of the open.
    bool open(std::string const& path, std::string& err);
    bool isOpen() const { return file != nullptr; }
    bool write(std::string const& text, std::string& err);
    // False when the last buffered bytes could not be written.
    bool close(std::string& err);

    // The reason of a failed write to `path`, from errno (EIO if unset).
    static std::string writeFailureText(std::string const& path);

private:
    std::string failureText() const { return writeFailureText(name); }

    FILE* file = nullptr;
    std::string name;
    std::vector<char> buffer;
};
