// Shows the system message box in every button set with every default-button choice and expects
// the result that defaultButtonResult (what the library answers when it has no display) gives:
// run under answer_boxes, which presses each box's default button, the two must agree.
// clang-format off
#include <windows.h>
// clang-format on

#include "velkor6/platform/ui.h"

#include <cstdio>

int main() {
    constexpr int buttonSets[] = {MB_OK,          MB_OKCANCEL, MB_ABORTRETRYIGNORE,
                                  MB_YESNOCANCEL, MB_YESNO,    MB_RETRYCANCEL};
    constexpr int defaults[] = {MB_DEFBUTTON1, MB_DEFBUTTON2, MB_DEFBUTTON3, MB_DEFBUTTON4};
    int passed = 0;
    int failed = 0;
    for (const int set : buttonSets) {
        for (const int choice : defaults) {
            const int style = set | choice;
            const int expected = velkor6::defaultButtonResult(style);
            wchar_t text[32];
            swprintf(text, 32, L"style %d", style);
            const int actual = MessageBoxW(nullptr, text, L"box defaults", style);
            if (actual == expected) {
                ++passed;
            } else {
                ++failed;
                std::printf("FAIL style %d: the box gave %d, expected %d\n", style, actual,
                            expected);
            }
        }
    }
    std::printf("%d passed, %d failed\n", passed, failed);
    return failed;
}
