// The preferences file <home>/zekcli.ini: a binary image of the token tree
// that carries keyword values and append sets from one run to the next.
// Reading is tolerant: whatever could be read before a damaged or foreign
// part stays, and the run goes on. Writing replaces the file in one step so
// that a failed write never loses the previous preferences.
#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "api/HbaMgmtLoader.h"
#include "core/FileByName.h"
#include "core/Parser.h"
#include "core/TokenRoot.h"

namespace {

constexpr char const* kPreferencesFileName = "zekcli.ini";
constexpr int32_t kFileHeader[4] = {2, 103, 6, 4};
// Every command reads the whole file; one buffer larger than the file makes
// that a single system call, not one per 4 KB.
constexpr size_t kFileBufferSize = 64 * 1024;

// glibc takes the size only together with a buffer of the caller's, which
// must then outlive the stream.
std::unique_ptr<char[]> useLargeBuffer(FILE* file)
{
    auto buffer = std::make_unique_for_overwrite<char[]>(kFileBufferSize);
    setvbuf(file, buffer.get(), _IOFBF, kFileBufferSize);
    return buffer;
}

// A token record: a fixed header, then the value bytes, then the name bytes.
constexpr size_t kRecordHeaderSize = 108;
constexpr size_t kTypeOffset = 0;
constexpr size_t kChildCountOffset = 4;
constexpr size_t kValueLengthOffset = 8;
constexpr size_t kNameLengthOffset = 12;
constexpr size_t kAOffset = 56;
constexpr size_t kBOffset = 60;
constexpr size_t kCOffset = 64;

// Groups kept out of the summary help. LUN configuration (3) shows only on a
// first run, before any preferences exist.
constexpr int32_t kHiddenGroupsFirstRun[] = {4, 5, 6, 7};
constexpr int32_t kHiddenGroups[] = {3, 4, 5, 6, 7};

void putInt32(unsigned char* at, int32_t value)
{
    std::memcpy(at, &value, sizeof value);
}

int32_t getInt32(unsigned char const* at)
{
    int32_t value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

bool writeBytes(FILE* file, void const* data, size_t size)
{
    return size == 0 || fwrite(data, 1, size, file) == size;
}

bool readInt32s(FILE* file, int32_t* values, size_t count)
{
    return fread(values, sizeof(int32_t), count, file) == count;
}

// Reads in pieces, so that a damaged length cannot ask for more memory than
// the file holds.
bool readText(FILE* file, uint32_t length, std::string& out)
{
    out.clear();
    char buffer[4096];
    while (length > 0) {
        size_t const wanted = std::min<size_t>(length, sizeof buffer);
        size_t const got = fread(buffer, 1, wanted, file);
        out.append(buffer, got);
        if (got != wanted)
            return false;
        length -= static_cast<uint32_t>(wanted);
    }
    return true;
}

template <size_t N>
void setGroupTable(int32_t (&table)[TokenRoot::GROUP_TABLE_SIZE], int32_t const (&groups)[N])
{
    std::fill(std::begin(table), std::end(table), 0);
    std::copy(std::begin(groups), std::end(groups), std::begin(table));
}

TokenModifierString* asModifier(Token* token)
{
    return token->tokenType == Token::TOKEN_TYPE_MODIFIER ? static_cast<TokenModifierString*>(token) : nullptr;
}

TokenCmd* asCommand(Token* token)
{
    return token->tokenType == Token::TOKEN_TYPE_CMD ? static_cast<TokenCmd*>(token) : nullptr;
}

bool saveChildOfCommand(FILE* file, Token* child)
{
    TokenModifierString* const keyword = asModifier(child);
    return keyword ? keyword->saveToPrefFile(file) : child->baseSaveToPrefFile(file, 0, 0, 0);
}

bool readChildOfCommand(FILE* file, Token* child)
{
    TokenModifierString* const keyword = asModifier(child);
    if (keyword)
        return keyword->initFromPrefFile(file);
    unsigned int childCount = 0;
    int a = 0, b = 0, c = 0;
    return child->baseInitFromPrefFile(file, childCount, a, b, c);
}

std::string preferencesPath()
{
    return Parser::getHomeDirectory() + "/" + kPreferencesFileName;
}

} // namespace

// ---- one token record -----------------------------------------------------

bool Token::baseSaveToPrefFile(FILE* file, int a, int b, int c)
{
    unsigned char header[kRecordHeaderSize] = {};
    putInt32(header + kTypeOffset, tokenType);
    putInt32(header + kChildCountOffset, static_cast<int32_t>(children.size()));
    putInt32(header + kValueLengthOffset, static_cast<int32_t>(value.size()));
    putInt32(header + kNameLengthOffset, static_cast<int32_t>(name.size()));
    putInt32(header + kAOffset, a);
    putInt32(header + kBOffset, b);
    putInt32(header + kCOffset, c);
    return writeBytes(file, header, sizeof header) && writeBytes(file, value.data(), value.size()) &&
        writeBytes(file, name.data(), name.size());
}

bool Token::baseInitFromPrefFile(FILE* file, unsigned int& childCount, int& a, int& b, int& c)
{
    unsigned char header[kRecordHeaderSize];
    if (fread(header, 1, sizeof header, file) != sizeof header)
        return false;
    if (getInt32(header + kTypeOffset) != tokenType)
        return false;
    childCount = static_cast<unsigned int>(getInt32(header + kChildCountOffset));
    a = getInt32(header + kAOffset);
    b = getInt32(header + kBOffset);
    c = getInt32(header + kCOffset);
    std::string text;
    if (!readText(file, static_cast<uint32_t>(getInt32(header + kValueLengthOffset)), text))
        return false;
    setValue(text);
    uint32_t const nameLength = static_cast<uint32_t>(getInt32(header + kNameLengthOffset));
    if (!readText(file, nameLength, text))
        return false;
    // A nameless token keeps no value.
    if (nameLength == 0)
        setValue(std::string());
    else
        setName(text);
    return true;
}

// ---- keyword, command and tree blocks -------------------------------------

bool TokenModifierString::saveToPrefFile(FILE* file)
{
    if (!baseSaveToPrefFile(file, modifierId, requiredKind, valueKind))
        return false;
    for (Token* child : children)
        if (!child->baseSaveToPrefFile(file, 0, 0, 0))
            return false;
    return true;
}

// Children beyond the declared ones are saved append sets: they are created
// as they are read.
bool TokenModifierString::initFromPrefFile(FILE* file)
{
    unsigned int childCount = 0;
    int a = 0, b = 0, c = 0;
    if (!baseInitFromPrefFile(file, childCount, a, b, c))
        return false;
    if (a != modifierId || b != requiredKind || c != valueKind)
        return false;
    unsigned int grandChildren = 0;
    size_t const declared = std::min<size_t>(children.size(), childCount);
    for (size_t i = 0; i < declared; ++i)
        if (!children[i]->baseInitFromPrefFile(file, grandChildren, a, b, c))
            return false;
    for (size_t i = declared; i < childCount; ++i) {
        StringToken* const child = new StringToken;
        if (!child->baseInitFromPrefFile(file, grandChildren, a, b, c)) {
            delete child;
            return false;
        }
        addChild(child);
    }
    return true;
}

bool TokenCmd::saveToPrefFile(FILE* file)
{
    if (!baseSaveToPrefFile(file, action, item, commandGroup))
        return false;
    for (Token* child : children)
        if (!saveChildOfCommand(file, child))
            return false;
    return true;
}

// A block from a build with another command set is given up at once.
bool TokenCmd::initFromPrefFile(FILE* file)
{
    unsigned int childCount = 0;
    int a = 0, b = 0, c = 0;
    if (!baseInitFromPrefFile(file, childCount, a, b, c))
        return false;
    if (childCount != children.size() || a != action || b != item || c != commandGroup)
        return false;
    for (Token* child : children)
        if (!readChildOfCommand(file, child))
            return false;
    return true;
}

bool TokenRoot::saveToPrefFile(FILE* file)
{
    if (!file)
        return false;
    if (!writeBytes(file, disabledGroups, sizeof disabledGroups) ||
        !writeBytes(file, hiddenGroups, sizeof hiddenGroups))
        return false;
    if (!baseSaveToPrefFile(file, 0, 0, 0) || !commonCommand.saveToPrefFile(file))
        return false;
    for (Token* child : children) {
        TokenCmd* const cmd = asCommand(child);
        if (!cmd || !cmd->saveToPrefFile(file))
            return false;
    }
    int32_t const lastChoice[2] = {lastInteractiveAction, lastInteractiveItem};
    return writeBytes(file, lastChoice, sizeof lastChoice);
}

// The group tables in the file are read past and replaced: they are fixed
// for the user, and differ only between a first run and later ones.
bool TokenRoot::initFromPrefFile(FILE* file)
{
    if (!file) {
        std::fill(std::begin(disabledGroups), std::end(disabledGroups), 0);
        setGroupTable(hiddenGroups, kHiddenGroupsFirstRun);
        return true;
    }
    bool const tablesRead =
        readInt32s(file, disabledGroups, GROUP_TABLE_SIZE) && readInt32s(file, hiddenGroups, GROUP_TABLE_SIZE);
    std::fill(std::begin(disabledGroups), std::end(disabledGroups), 0);
    setGroupTable(hiddenGroups, kHiddenGroups);
    if (!tablesRead)
        return false;

    unsigned int childCount = 0;
    int a = 0, b = 0, c = 0;
    if (!baseInitFromPrefFile(file, childCount, a, b, c) || childCount != children.size())
        return false;
    if (!commonCommand.initFromPrefFile(file))
        return false;
    for (Token* child : children) {
        TokenCmd* const cmd = asCommand(child);
        if (!cmd || !cmd->initFromPrefFile(file))
            return false;
    }
    int32_t lastChoice[2];
    if (readInt32s(file, lastChoice, 2)) {
        lastInteractiveAction = lastChoice[0];
        lastInteractiveItem = lastChoice[1];
    }
    return true;
}

// ---- the file -------------------------------------------------------------

std::string Parser::getHomeDirectory()
{
    return hbaMgmt_getHomeDirectory();
}

void Parser::init()
{
    std::string unreadable;
    FILE* file = openFileByName(preferencesPath(), "rb", unreadable);
    std::unique_ptr<char[]> buffer;
    if (file) {
        buffer = useLargeBuffer(file);
        int32_t header[4];
        for (int32_t& value : header)
            if (!readInt32s(file, &value, 1))
                break;
    }
    initParsingTree();
    root.initFromPrefFile(file);
    if (file)
        fclose(file);
}

namespace {

// The tree as the file would hold it, built in memory first so that it can be
// compared with what is on disk.
bool serialisePreferences(TokenRoot& root, std::string& out)
{
    char* data = nullptr;
    size_t size = 0;
    FILE* stream = open_memstream(&data, &size);
    if (!stream)
        return false;
    bool const written = writeBytes(stream, kFileHeader, sizeof kFileHeader) && root.saveToPrefFile(stream);
    bool const closed = fclose(stream) == 0;
    if (written && closed)
        out.assign(data, size);
    free(data);
    return written && closed;
}

bool fileHolds(std::string const& path, std::string const& bytes)
{
    std::string unreadable;
    FILE* file = openFileByName(path, "rb", unreadable);
    if (!file)
        return false;
    std::string held(bytes.size() + 1, '\0');
    size_t const got = fread(held.data(), 1, held.size(), file);
    fclose(file);
    return got == bytes.size() && std::memcmp(held.data(), bytes.data(), got) == 0;
}

// Written to a private temporary file beside the old one and renamed over
// it: the file holds password keyword values in clear, and a write that
// fails half-way must not cost the user the preferences they had.
void replaceFile(std::string const& path, std::string const& bytes)
{
    std::string temporary = path + ".XXXXXX";
    int const fd = mkstemp(temporary.data());
    if (fd < 0)
        return;
    fchmod(fd, S_IRUSR | S_IWUSR);
    size_t done = 0;
    while (done < bytes.size()) {
        ssize_t const n = write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        done += static_cast<size_t>(n);
    }
    bool const closed = close(fd) == 0;
    if (done != bytes.size() || !closed || rename(temporary.c_str(), path.c_str()) != 0)
        unlink(temporary.c_str());
}

// Where the preferences are written: a symlink is written through to its
// target, as an open of the name would; a name that is neither a regular file
// nor missing (a FIFO, a device, a dangling link) is left alone.
bool preferencesTarget(std::string const& path, std::string& target)
{
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) {
        target = path;
        return errno == ENOENT;
    }
    if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    char* const resolved = realpath(path.c_str(), nullptr);
    if (!resolved)
        return false;
    target = resolved;
    free(resolved);
    return true;
}

} // namespace

// Most commands leave the preferences as they found them; replacing a file
// by rename costs more than the rest of such a command, so a file that
// already holds exactly these bytes is left alone.
void Parser::save()
{
    std::string const path = preferencesPath();
    std::string bytes;
    std::string target;
    if (!preferencesTarget(path, target) || !serialisePreferences(root, bytes) || fileHolds(target, bytes))
        return;
    replaceFile(target, bytes);
}
