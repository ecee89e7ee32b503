#include "commands/CommandLine.h"

#include <iostream>

int main(int argc, char** argv) {
    EndOnBrokenPipe();
    return Run(argc, argv, std::cout, std::cerr, ScreenOfProcess());
}
