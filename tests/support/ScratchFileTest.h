// A test that works on files: a private scratch directory, files written into
// it byte for byte, and the local time zone pinned to UTC, since dates and
// times in files are read as local time.
#pragma once

#include <ctime>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "support/TempDirectory.h"

class ScratchFileTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.made());
        tzset();
    }
    void TearDown() override { tzset(); }

    // The path of the file written.
    std::string writeFile(std::string const& name, std::string const& bytes) const
    {
        std::ofstream(dir.file(name), std::ios::binary) << bytes;
        return dir.file(name);
    }

    ScopedEnvironmentVariable zone{"TZ", "UTC"};
    TempDirectory dir;
};
