// "save script": saves an editable text file containing the current adapter configuration as a list
// of Host CLI commands.
#pragma once

#include <cstdio>
#include <string>

#include "core/TokenCmd.h"

class HIsaAdapter;
class KIsaAdapterInfo;

class CmdScriptSave : public TokenCmd {
public:
    CmdScriptSave();

    int execCommand(std::string& err) override;

private:
    // Reads -file and -useappend and opens the file when one was named.
    bool openScriptFile(FILE*& file, std::string& appendName, std::string& err);
    // The sections after the header, in script order; the first failing
    // writer ends the run with its code.
    int runWriters(HIsaAdapter* adapter, FILE* file, std::string const& tail, std::string const& appendName,
                   KIsaAdapterInfo const& info, std::string& err);
};
