// Shows the management library's messages and progress to the user, through
// the output channels of the running command line.
#pragma once

#include "api/HMsgHandler.h"

class TokenRoot;

class MyMsgHandler : public HMsgHandler {
public:
    explicit MyMsgHandler(TokenRoot* tokenRoot) : root(tokenRoot) {}

    void debugMsg(const char* text) override;
    void infoMsg(const char* text) override;
    void failureMsg(const char* text) override;
    void progressMsg(int percent) override;
    void progressBar(const char* text) override;
    void unknownMsg(MSG_TYPE type, const void* data) override;

    TokenRoot* root;
};
