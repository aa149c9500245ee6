#include <cstdio>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "core/TokenCmd.h"
#include "scripting/BlockLineReader.h"
#include "support/TempDirectory.h"

namespace {

struct Read {
    std::vector<std::string> lines;
    bool operator==(Read const&) const = default;
};

FILE* fileWith(std::string const& bytes)
{
    FILE* file = std::tmpfile();
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::rewind(file);
    return file;
}

Read byScriptReader(std::string const& bytes)
{
    FILE* file = fileWith(bytes);
    Read read;
    std::string line;
    while (TokenCmd::readLineFromFilePointer(file, line))
        read.lines.push_back(line);
    std::fclose(file);
    return read;
}

Read byBlockReader(std::string const& bytes)
{
    FILE* file = fileWith(bytes);
    BlockLineReader reader;
    reader.reset(file);
    Read read;
    std::string line;
    while (reader.readLine(line))
        read.lines.push_back(line);
    EXPECT_EQ(0, reader.readError());
    std::fclose(file);
    return read;
}

} // namespace

TEST(BlockLineReader, LineEndsByTheScriptRule)
{
    EXPECT_EQ((std::vector<std::string>{"a", "b", "", "c"}), byBlockReader("a\nb\r\n\nc\rXd").lines);
    EXPECT_EQ((std::vector<std::string>{"a"}), byBlockReader("a\nno end").lines);
    EXPECT_EQ((std::vector<std::string>{"a"}), byBlockReader("a\nb\r").lines) << "a carriage return at the very end";
    EXPECT_EQ((std::vector<std::string>{"a", ""}), byBlockReader("a\r\r\r\n").lines);
    EXPECT_EQ((std::vector<std::string>{std::string("x\0y", 3)}), byBlockReader(std::string("x\0y\n", 4)).lines);
    EXPECT_TRUE(byBlockReader("").lines.empty());
}

TEST(BlockLineReader, ReadsAsTheScriptReaderDoesAcrossBlockBoundaries)
{
    std::mt19937 random(23);
    char const alphabet[] = {'a', 'b', '\n', '\r', '\0', ','};
    for (int round = 0; round < 200; ++round) {
        std::size_t const size = random() % (3 * BlockLineReader::kBlockSize);
        std::string bytes(size, 'a');
        // Mostly long runs of text, so that lines straddle blocks.
        for (char& c : bytes)
            c = random() % 50 == 0 ? alphabet[random() % sizeof alphabet] : 'a';
        ASSERT_EQ(byScriptReader(bytes), byBlockReader(bytes)) << "round " << round;
    }
}

TEST(BlockLineReader, CarriageReturnAndLineFeedOnABlockBoundary)
{
    for (std::size_t at = BlockLineReader::kBlockSize - 3; at <= BlockLineReader::kBlockSize + 1; ++at) {
        std::string bytes(at, 'x');
        bytes += "\r\nnext\n";
        ASSERT_EQ(byScriptReader(bytes), byBlockReader(bytes)) << at;
    }
}

TEST(BlockLineReader, NoFileNoLine)
{
    BlockLineReader reader;
    reader.reset(nullptr);
    std::string line = "stale";
    EXPECT_FALSE(reader.readLine(line));
    EXPECT_TRUE(line.empty());
}

TEST(BlockLineReader, FolderGivesAReadError)
{
    TempDirectory dir;
    ASSERT_TRUE(dir.made());
    FILE* folder = std::fopen(dir.path.c_str(), "r");
    ASSERT_NE(nullptr, folder);
    BlockLineReader reader;
    reader.reset(folder);
    std::string line;
    EXPECT_FALSE(reader.readLine(line));
    EXPECT_EQ(EISDIR, reader.readError());
    std::fclose(folder);
}
