// Reading a result file: the records that -result appends, one per call,
// each with the command, its completion status and an optional payload.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct ResultRecord {
    size_t offset = 0; // where the record starts in the file
    uint32_t apiVersion[4] = {};
    int32_t action = 0;
    int32_t item = 0;
    int32_t status = 0;
    std::vector<unsigned char> payload;
};

// Splits the bytes into records. False, with the reason and the byte offset
// in `err`, for bytes that are no result file or are cut short.
bool parseResultFile(std::vector<unsigned char> const& bytes, std::vector<ResultRecord>& records, std::string& err);
