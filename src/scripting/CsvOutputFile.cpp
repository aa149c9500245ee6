#include "scripting/CsvOutputFile.h"

#include <cerrno>
#include <cstring>

#include "core/Token.h"

CsvOutputFile::~CsvOutputFile()
{
    std::string ignored;
    close(ignored);
}

bool CsvOutputFile::open(std::string const& path, std::string& err)
{
    close(err);
    name = path;
    if (!Token::safe_fopen(&file, path, "w", err))
        return false;
    // The C library takes a larger size only together with a buffer of ours.
    buffer.resize(kBufferSize);
    std::setvbuf(file, buffer.data(), _IOFBF, buffer.size());
    return true;
}

bool CsvOutputFile::write(std::string const& text, std::string& err)
{
    errno = 0;
    if (file && std::fwrite(text.data(), 1, text.size(), file) == text.size())
        return true;
    err = failureText();
    return false;
}

bool CsvOutputFile::close(std::string& err)
{
    if (!file)
        return true;
    errno = 0;
    bool const flushed = std::fclose(file) == 0;
    file = nullptr;
    if (!flushed)
        err = failureText();
    return flushed;
}

std::string CsvOutputFile::writeFailureText(std::string const& path)
{
    return "Unable to write file \"" + path + "\", (" + std::strerror(errno != 0 ? errno : EIO) + ")";
}
