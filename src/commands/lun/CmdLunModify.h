// "modify lun": grows, renames or changes the mirror of a data LUN of the adapter.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class KLunInfo;

class CmdLunModify : public TokenCmd {
public:
    CmdLunModify();

    int execCommand(std::string& err) override;

private:
    // What the keywords ask of the LUN.
    struct LunChange {
        bool size = false;
        long long gigabytes = 0;
        bool name = false;
        std::string newName;
        bool mirror = false;
        bool removeMirror = false;
        unsigned long long mirrorAdapter = 0;
    };

    int readChange(KLunInfo const& info, LunChange& change, std::string& err);
    static int checkCombination(LunChange const& change, std::string& err);
};
