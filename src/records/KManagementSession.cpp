#include "records/KManagementSession.h"

#include <cstdio>
#include <memory>

namespace {

struct FileCloser {
    void operator()(FILE* file) const { fclose(file); }
};
using FileHandle = std::unique_ptr<FILE, FileCloser>;

uint32_t atMost(uint32_t length, uint32_t limit)
{
    return length < limit ? length : limit;
}

// Reads a length word and that many bytes into `field`; a short read leaves
// what it got, and a length beyond the field is cut to the field.
void readCounted(FILE* file, uint32_t& length, unsigned char* field, uint32_t fieldSize)
{
    length = 0;
    if (fread(&length, sizeof length, 1, file) != 1) {
        length = 0;
    }
    length = atMost(length, fieldSize);
    size_t got = fread(field, 1, length, file);
    (void)got;
}

void writeCounted(FILE* file, uint32_t length, const unsigned char* field, uint32_t fieldSize)
{
    length = atMost(length, fieldSize);
    fwrite(&length, sizeof length, 1, file);
    fwrite(field, 1, length, file);
}

} // namespace

KManagementSession::KManagementSession()
{
    init();
}

KManagementSession::KManagementSession(const KManagementSession& other) : PBase()
{
    init();
    *this = other;
}

KManagementSession& KManagementSession::operator=(const KManagementSession& other)
{
    init();
    copySavedArea(&other);
    return *this;
}

KManagementSession::~KManagementSession()
{
    init();
}

void KManagementSession::init()
{
    ZEK_ASSERT_FIELD_OFFSET(KManagementSession, sessionId, 20);
    ZEK_ASSERT_FIELD_OFFSET(KManagementSession, sessionKeyLength, 296);
    initSerialization(sessionId, sizeof(KManagementSession));
    fastMemsetZero(sessionId, serialSize);
}

// A session is a secret; it has no text form.
std::string KManagementSession::displayText() const
{
    return std::string();
}

bool KManagementSession::saveToFile(const std::string& name) const
{
    FileHandle file(fopen(name.c_str(), "wb"));
    if (!file) {
        return false;
    }
    writeCounted(file.get(), sessionIdLength, sessionId, SESSION_ID_SIZE);
    writeCounted(file.get(), sessionKeyLength, sessionKey, SESSION_KEY_SIZE);
    return true;
}

bool KManagementSession::restoreFromFile(const std::string& name)
{
    FileHandle file(fopen(name.c_str(), "rb"));
    if (!file) {
        return false;
    }
    init();
    readCounted(file.get(), sessionIdLength, sessionId, SESSION_ID_SIZE);
    readCounted(file.get(), sessionKeyLength, sessionKey, SESSION_KEY_SIZE);
    return true;
}
