// The line at the head of a command's output that tells which adapter is
// meant and how it is reached.
#pragma once

#include <string>

class KIsaAdapterPath;

// `path` null means no adapter was selected; `agentGiven` and `agentValue`
// describe the -agent keyword of the line.
std::string adapterBannerText(KIsaAdapterPath const* path, bool agentGiven, std::string const& agentValue);
