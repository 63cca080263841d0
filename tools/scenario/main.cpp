// slicewright-scenario: drives the real logic through scripted ports and
// prints a transcript of every call into them.
#include "tools/scenario/RealPictureLoader.h"
#include "tools/scenario/ScenarioRunner.h"

#include <fstream>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: slicewright-scenario SCRIPT\n";
        return 2;
    }
    std::ifstream script(argv[1], std::ios::binary);
    if (!script) {
        std::cerr << "slicewright-scenario: cannot read " << argv[1] << '\n';
        return 2;
    }
    try {
        auto loader = sw::scripted::MakeRealPictureLoader();
        sw::scripted::ScenarioRunner runner(std::cout, loader.get());
        runner.Run(script);
    } catch (const sw::scripted::ScriptError& error) {
        std::cout.flush();
        std::cerr << "slicewright-scenario: " << argv[1] << ": " << error.what() << '\n';
        return 1;
    } catch (const std::exception& error) {
        std::cout.flush();
        std::cerr << "slicewright-scenario: " << argv[1] << ": the logic failed: " << error.what()
                  << '\n';
        return 1;
    }
    return 0;
}
