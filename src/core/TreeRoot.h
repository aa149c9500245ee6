// Reaching the root of the grammar tree from any of its nodes.
#pragma once

class Token;
class TokenRoot;

// The root above `token`, or null for a node outside the tree (the holder of
// the common keywords has no parent).
TokenRoot* rootOfTree(Token const* token);
