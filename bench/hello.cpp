// The floor: what any dynamically linked C++ program pays to start and print.
#include <iostream>

int main()
{
    std::cout << "hello" << std::endl;
    return 0;
}
