// A login to an adapter, kept in a file so that later runs can reuse it.
#pragma once

#include <cstdint>
#include <string>

#include "records/PBase.h"

class KManagementSession : public PBase {
public:
    static constexpr unsigned int SESSION_ID_SIZE = 16;
    static constexpr unsigned int SESSION_KEY_SIZE = 256;

    KManagementSession();
    KManagementSession(const KManagementSession& other);
    KManagementSession& operator=(const KManagementSession& other);
    ~KManagementSession() override;

    void init() override;
    std::string displayText() const override;

    // Both give false only when the file cannot be opened.
    bool saveToFile(const std::string& name) const;
    bool restoreFromFile(const std::string& name);

    unsigned char sessionId[SESSION_ID_SIZE];
    uint32_t sessionIdLength;
    unsigned char sessionKey[SESSION_KEY_SIZE];
    uint32_t sessionKeyLength;
};

static_assert(sizeof(KManagementSession) == 304, "management session image");
