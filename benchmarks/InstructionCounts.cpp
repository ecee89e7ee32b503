#include "InstructionCounts.h"

#include "Process.h"
#include "Results.h"

#include <fstream>
#include <regex>
#include <sstream>

namespace {

using Path = std::filesystem::path;

/// Returns a command that runs another one under callgrind. Callgrind appends ".1", ".2" and so on to the name of the
/// file, except for the dump at the end of the process.
Command UnderCallgrind(const Path& file, const Command& command, const Command& options = {}) {
    Command counted{"valgrind", "-q", "--tool=callgrind", "--callgrind-out-file=" + file.string()};
    counted.insert(counted.end(), options.begin(), options.end());
    counted.insert(counted.end(), command.begin(), command.end());
    return counted;
}

/// Reads a dump. If an operation triggered the dump, its name is used instead of `name`.
void ReadDump(const Path& file, std::string name, Results& results) {
    const std::string kTrigger = "desc: Trigger: Client Request: ";
    const std::string kTotals = "totals: ";
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with(kTrigger)) {
            double requests = 0;
            std::istringstream(line.substr(kTrigger.size())) >> name >> requests;
            results.Put(Quantity::Requests, name, requests);
        }
        if (line.starts_with(kTotals))
            results.Put(Quantity::Instructions, name, std::stod(line.substr(kTotals.size())));
    }
}

} // namespace

void CountInstructions(const std::string& benchmarks, const std::string& filter, const Programs& programs,
                       const Path& folder, Results& results) {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    // The processes run in parallel, which does not change their counts.
    std::vector<std::pair<const Program*, Process>> counted;
    for (const Program& program : programs)
        if (std::regex_search(program.name, std::regex(filter)))
            counted.emplace_back(&program, Process(UnderCallgrind(folder / program.file, program.command)));
    const Path dumps = folder / "operations";
    Process operations(UnderCallgrind(dumps, {benchmarks, "--count", filter}, {"--instr-atstart=no"}));
    for (auto& [program, process] : counted) {
        if (process.Wait() == 0)
            ReadDump(folder / program->file, program->name, results);
    }
    if (operations.Wait() != 0)
        return;
    for (int i = 1; std::filesystem::exists(dumps.string() + "." + std::to_string(i)); ++i)
        ReadDump(dumps.string() + "." + std::to_string(i), "", results);
}
