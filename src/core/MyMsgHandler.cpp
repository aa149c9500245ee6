#include "core/MyMsgHandler.h"

#include <cstdio>
#include <string>

#include "core/TokenRoot.h"

void MyMsgHandler::debugMsg(const char* text)
{
    root->outError(std::string(text ? text : ""));
}

void MyMsgHandler::failureMsg(const char* text)
{
    debugMsg(text);
}

// Library notes also land in the text file when one is in use.
void MyMsgHandler::infoMsg(const char* text)
{
    std::string error;
    if (!root->outDisplay(std::string(text ? text : ""), "hsp_api.log", error))
        root->outError(error);
}

// The line is rewritten in place; past 99 % it is wiped with fourteen blanks.
void MyMsgHandler::progressMsg(int percent)
{
    std::string line = "\r";
    if (percent <= 99)
        line += std::to_string(percent) + "% Complete";
    else
        line += "\r              \r";
    printf("%s", line.c_str());
}

void MyMsgHandler::progressBar(const char* text)
{
    printf("%s", text ? text : "");
    fflush(stdout);
}

void MyMsgHandler::unknownMsg(MSG_TYPE type, const void*)
{
    printf("Unknown message type %d received", static_cast<int>(type));
}
