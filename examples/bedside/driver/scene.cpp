// bedside_scene SCENE [ARGUMENT...]: starts the example with these arguments, brings its window to
// where the scene wants it, prints the window's place on the screen as "WIDTHxHEIGHT+X+Y", and
// closes it when standard input ends.

#include "BedsideProgram.h"

#include "bedside/controls.h"

#include <exception>
#include <iostream>
#include <limits>
#include <string>

namespace
{

using BedsideDriver::BedsideProgram;

void playRunning(const BedsideProgram& program)
{
    program.press(ID_START);
    program.waitUntil("some millilitres", [&] { return program.text(ID_GIVEN) >= L"0.05 mL"; });
}

void playRefusal(const BedsideProgram& program)
{
    program.type(ID_DOSE, L"2,5");
    SendMessageW(program.window(), WM_NEXTDLGCTL,
                 reinterpret_cast<WPARAM>(program.control(ID_DOSE)), TRUE);
    program.waitUntil("the refusal", [&] { return !program.isEnabled(ID_START); });
}

void playEmpty(const BedsideProgram& program)
{
    program.type(ID_AMOUNT, L"0.0021");
    program.type(ID_VOLUME, L"0.1");
    program.press(ID_START);
    program.waitUntil("the end", [&] { return program.isVisible(ID_START); });
}

struct Scene {
    const char* name;
    void (*play)(const BedsideProgram&);
};
constexpr Scene scenes[] = {
    {"running", playRunning}, {"refusal", playRefusal}, {"empty", playEmpty}};

BOOL CALLBACK isPainted(HWND control, LPARAM)
{
    return IsWindowVisible(control) == 0 || GetUpdateRect(control, nullptr, FALSE) == 0 ? TRUE
                                                                                        : FALSE;
}

void show(const Scene& scene, const std::wstring& arguments)
{
    BedsideProgram program(arguments);
    SetForegroundWindow(program.window());
    program.waitUntil("the foreground", [&] { return GetForegroundWindow() == program.window(); });
    // A window that was active before it was in the foreground keeps a grey title bar under Wine.
    SendMessageW(program.window(), WM_NCACTIVATE, TRUE, 0);
    scene.play(program);
    program.waitUntil("the picture",
                      [&] { return EnumChildWindows(program.window(), isPainted, 0) != 0; });

    RECT place = {};
    GetWindowRect(program.window(), &place);
    std::cout << place.right - place.left << 'x' << place.bottom - place.top << '+' << place.left
              << '+' << place.top << std::endl;
    std::cin.ignore(std::numeric_limits<std::streamsize>::max());
    program.close();
}

} // namespace

int main(int argumentCount, char** argumentValues)
{
    std::wstring arguments;
    for (int i = 2; i < argumentCount; ++i) {
        const std::string argument = argumentValues[i];
        arguments += L'"' + std::wstring(argument.begin(), argument.end()) + L"\" ";
    }
    try {
        for (const Scene& scene : scenes) {
            if (argumentCount < 2 || std::string(argumentValues[1]) != scene.name)
                continue;
            show(scene, arguments);
            return 0;
        }
        std::cerr << "bedside_scene: there is no such scene\n";
    } catch (const std::exception& error) {
        std::cerr << "bedside_scene: " << error.what() << '\n';
    }
    return 1;
}
