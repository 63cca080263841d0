#include "CommandLine.h"
#include "CutRun.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    const sw::CommandLine commandLine = sw::ParseCommandLine(argc, argv);
    if (!commandLine.options) {
        std::cout << commandLine.output;
        std::cerr << commandLine.error;
        return commandLine.exitCode;
    }
    try {
        sw::CutRun run(*commandLine.options, std::cout, std::cerr);
        return run.Run();
    } catch (const std::exception& error) {
        // Out of memory on a huge picture and the like: a message, never a crash.
        std::cerr << sw::kProgram << ": stopped: " << error.what() << "\n";
        return 1;
    }
}
