// Placeholder for the simulator tool.
#include <cstdio>
int main() { std::fputs("hbasim: not available yet\n", stderr); return 2; }
