// Loads a document file as the commands of qvrnames do, and ends: the reference for their instructions and times.

#include "commands/Commands.h"

int main(int argc, char** argv) { return argc == 2 && OpenDocument(argv[1]) != nullptr ? 0 : 1; }
