#include "CommandLine.h"
#include "CutRun.h"

#include <iostream>

int main(int argc, char** argv) {
    const sw::CommandLine commandLine = sw::ParseCommandLine(argc, argv);
    if (!commandLine.options) {
        std::cout << commandLine.output;
        std::cerr << commandLine.error;
        return commandLine.exitCode;
    }
    sw::CutRun run(*commandLine.options, std::cout, std::cerr);
    return run.Run();
}
