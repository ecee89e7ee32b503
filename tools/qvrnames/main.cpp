#include "commands/CommandLine.h"

#include <iostream>

int main(int argc, char** argv) {
    EndWhenNobodyReads();
    return Run(argc, argv, std::cout, std::cerr, ScreenOfStandardOutput());
}
