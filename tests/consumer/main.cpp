// Calls one member of an installed velkor6; prints 1 (the position of "a" in "abc").
#include <iostream>
#include <velkor6/lib.h>

int main() {
    velkor6::lib lib(velkor6::Module::createDefault());
    std::cout << lib.vkrFindSubString(u"abc", u"a") << '\n';
}
