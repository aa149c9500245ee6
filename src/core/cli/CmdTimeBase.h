#pragma once

#include "core/TokenCmd.h"

// Base of the commands that deal with time rather than with a device.
class CmdTimeBase : public TokenCmd {};
