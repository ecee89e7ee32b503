#include "Run.h"

#include <iostream>

int main(int argc, char** argv) { return Run(argc, argv, std::cout, std::cerr); }
