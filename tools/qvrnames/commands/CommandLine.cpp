#include "commands/CommandLine.h"

#include "QVRNameUtilityVersion.h"
#include "commands/Commands.h"
#include "document/EditDistance.h"
#include "terminal/DisplayWidth.h"

#include "errors/MessageCatalog.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <optional>
#include <ostream>
#include <sstream>

namespace {

constexpr const char* kFooter =
    "DOCUMENT is the path of a document file, or - for standard input.\n\n"
    "How to specify FEATURE: by its id, by its JSON pointer in the file (which begins with \"/\"), or by\n"
    "its path of names, such as Static/Step-1/Pressure-1. The last part of a path is sufficient if only\n"
    "one feature has it.\n\n"
    "Messages are in English unless --language selects another language. The locale has no effect, so\n"
    "scripts get the same output on every machine.\n\n"
    "Exit status: 0 success; 1 a name is refused, or none can be proposed; 2 the arguments or the\n"
    "document are unusable, or the result cannot be written.\n\n"
    "Example: qvrnames audit pump.json\n";

// CLI11 splits an argument such as "[a,b]" into "a" and "b". A mark in front of the bracket prevents that.
constexpr char kMark = '\x1F';

/// Returns the arguments in the order that CLI::App::parse expects, with marks.
std::vector<std::string> MarkedArguments(int argc, const char* const* argv) {
    std::vector<std::string> arguments(std::reverse_iterator(argv + argc), std::reverse_iterator(argv + 1));
    for (std::string& argument : arguments)
        if (argument.starts_with('[') || argument.starts_with(kMark))
            argument.insert(0, 1, kMark);
    return arguments;
}

std::string WithoutMark(const std::string& argument) {
    return argument.starts_with(kMark) ? argument.substr(1) : argument;
}

/// Refuses an empty file name, such as that of an unset variable of a script.
std::string RefuseEmptyName(const std::string& file) { return file.empty() ? "the name of the file is empty" : ""; }

/// The commands and options of the program.
class CommandLine {
public:
    CommandLine(std::ostream& out, std::ostream& err, const Screen& screen) : m_console{out, err, screen} {
        m_app.set_version_flag("--version", "qvrnames " QVR_NAME_UTILITY_VERSION);
        m_app.allow_windows_style_options(false); // "/x" is a path or a JSON pointer, never an option
        m_app.require_subcommand(1);
        m_app.footer(kFooter);
        AddCommon(&m_app);
        AddCheck();
        AddAudit();
        AddDeck();
        AddPropose();
        AddRename();
        AddFix();
        AddExplain();
        AddImport();
        for (CLI::App* command : m_app.get_subcommands({}))
            for (CLI::Option* option : command->get_options(nullptr))
                option->transform(WithoutMark);
    }

    /// Parses the arguments, then runs their command and returns its exit code.
    int Run(int argc, const char* const* argv) {
        try {
            m_app.parse(MarkedArguments(argc, argv));
        } catch (const CLI::ParseError& error) {
            if (error.get_exit_code() == 0) // --help and --version
                return m_app.exit(error, m_console.out, m_console.err);
            std::string message = DescribeUnknownWord().value_or(error.what());
            std::erase(message, kMark);
            throw BadInput(message + " (see --help)");
        }
        if (m_colour != "auto")
            m_console.screen.hasColour = m_colour == "always";
        if (!MessageCatalog::SetLanguage(m_language))
            throw BadInput("--language: no messages in \"" + m_language +
                           "\"; available languages: " + CLI::detail::join(MessageCatalog::Languages(), ", "));
        return m_command();
    }

private:
    /// Returns a message about an unknown command or option, with a suggestion; nothing for any other error.
    std::optional<std::string> DescribeUnknownWord() const {
        const std::vector<std::string> unknown = m_app.remaining(true);
        const std::vector<CLI::App*> parsed = m_app.get_subcommands();
        if (unknown.empty())
            return std::nullopt;
        std::vector<std::string> known;
        if (unknown.front().starts_with("-")) {
            const CLI::App& app = parsed.empty() ? m_app : *parsed.front();
            for (const CLI::Option* option : app.get_options())
                for (const std::string& name : option->get_lnames())
                    known.push_back("--" + name);
            const std::string name = unknown.front().substr(0, unknown.front().find('='));
            return "unknown option " + name + "; " + Suggestion(name, known);
        }
        if (!parsed.empty())
            return std::nullopt;
        for (const CLI::App* command : m_app.get_subcommands({}))
            known.push_back(command->get_name());
        return "unknown command \"" + unknown.front() + "\"; " + Suggestion(unknown.front(), known);
    }

    /// Adds the options that are allowed before and after every command.
    void AddCommon(CLI::App* app) {
        app->add_flag("--json", m_console.isJson, "Print the result as JSON");
        app->add_option("--color", m_colour,
                        "Use colours: auto (default; on a terminal, unless NO_COLOR is set), always or never")
            ->check(CLI::IsMember({"auto", "always", "never"}))
            ->type_name("WHEN");
        app->add_option("--language", m_language, "Language of messages: en (default), de, fr or ja")
            ->type_name("LANG");
    }
    /// Adds a command with its help text, examples of its arguments, and the common options. Run calls `command` if the
    /// command line contains the name.
    CLI::App* Add(const char* name, const char* description, const std::vector<std::string>& examples,
                  const std::function<int()>& command) {
        CLI::App* added = m_app.add_subcommand(name, description);
        AddCommon(added);
        added->footer("Example: qvrnames " + CLI::detail::join(examples, "\n         qvrnames ") + "\n");
        added->callback([this, command] { m_command = command; });
        return added;
    }

    void AddCheck() {
        CLI::App* app = Add("check", "Check whether texts are legal as names of features or files.",
                            {"check Step-1 \"Static Step.2\""}, [this] { return CheckNames(m_check, m_console); });
        app->add_option("NAME", m_check.names, "The names to check; - for names on stdin, one per line");
        TakesFile(app->add_option("--from", m_check.from, "Also check the names in this file, one per line"));
        app->add_flag("--file-name", m_check.areFileNames, "Check them as file names");
    }
    void AddAudit() {
        CLI::App* app = Add("audit", "Check the name of every feature in documents.",
                            {"audit pump.json", "audit models/ --format sarif > names.sarif"},
                            [this] { return AuditDocuments(m_audit, m_console); });
        app->add_option("DOCUMENT", m_audit.documents,
                        "Document files, folders with *.json files in or below them, or - for stdin")
            ->check(RefuseEmptyName)
            ->required()
            ->expected(1, -1);
        app->add_flag("--deck", m_audit.withDeck,
                      "Also check the names in the solver deck for broken rules and duplicates");
        app->add_flag("--strict", m_audit.isStrict, "Count warnings, for example of unknown late types, as findings");
        app->add_flag("--summary", m_audit.isSummary, "Print only the number of findings by rule (format text)");
        app->add_option("--format", m_audit.format, "Format of the report: text (default), json, sarif or junit")
            ->check(CLI::IsMember({"text", "json", "sarif", "junit"}))
            ->type_name("FORMAT");
        TakesFile(app->add_option("--baseline", m_audit.baseline, "Ignore the findings in this file"));
        TakesFile(app->add_option("--write-baseline", m_audit.newBaseline,
                                  "Write all findings and warnings to this file; they do not change the exit code"))
            ->excludes("--baseline");
    }
    void AddDeck() {
        CLI::App* app = Add("deck", "Show the names that the solver deck would contain.", {"deck pump.json"},
                            [this] { return ShowDeck(m_deckDocument, m_console); });
        AddDocument(app, m_deckDocument);
    }
    void AddPropose() {
        CLI::App* app = Add("propose", "Propose the next free name for a feature.",
                            {"propose pump.json new-load", "propose pump.json Static/Step-1 --base \"Static Step-\"",
                             "propose pump.json --job"},
                            [this] { return ProposeName(m_propose, m_console); });
        AddDocument(app, m_propose.document);
        app->add_option("FEATURE", m_propose.feature, "The feature to propose a name for");
        app->add_flag("--job", m_propose.isJob, "Propose the name of a new job; omit FEATURE");
        app->add_option("--base", m_propose.base, "Base name (default: derived from the feature's type)");
    }
    void AddRename() {
        CLI::App* app = Add("rename", "Rename a feature if the new name is allowed.",
                            {"rename pump.json Static/Step-1 \"Bolt Load\" --output new.json"},
                            [this] { return RenameFeature(m_rename, m_console); });
        AddDocument(app, m_rename.document);
        app->add_option("FEATURE", m_rename.feature, "The feature to rename")->required();
        app->add_option("NAME", m_rename.name, "The new name")->required();
        app->add_flag("--force", m_rename.force,
                      "Store the name even if it breaks a rule. For features of guarded types, it is still refused");
        TakesFile(app->add_option("--output", m_rename.output,
                                  "Write the changed document to this file and leave DOCUMENT unchanged.\n"
                                  "- is stdout, the default if DOCUMENT is stdin; then messages go to stderr"));
    }
    void AddFix() {
        CLI::App* app = Add("fix", "Find a legal and unique name for every refused name in a document.",
                            {"fix pump.json", "fix pump.json --write"}, [this] { return FixNames(m_fix, m_console); });
        app->footer(app->get_footer() +
                    "\nExit status: 0 no name is refused, or all are fixed; 1 a name cannot be fixed, or changes are\n"
                    "not written because --write is missing; 2 as for all commands.\n");
        AddDocument(app, m_fix.document);
        app->add_flag("--write", m_fix.write,
                      "Change the names in DOCUMENT (default: only print the changes).\n"
                      "If DOCUMENT is stdin, write the document to stdout and messages to stderr");
    }
    void AddExplain() {
        CLI::App* app = Add("explain", "Explain a message or rule: print its cause, an example, and the fix.",
                            {"explain IllegalCharERR_01"}, [this] { return ExplainRule(m_explained, m_console); });
        app->add_option("ID", m_explained, "The message id or rule in a report; omit it to list all of them");
    }
    void AddImport() {
        CLI::App* app = Add("import", "Make a document from a table of names.",
                            {"import names.csv --output names.json", "import names.csv | qvrnames audit -"},
                            [this] { return ImportTable(m_import, m_console); });
        app->add_option("TABLE", m_import.table,
                        "A file with comma-separated values, or - for stdin. Columns: case, step, set, type,\n"
                        "name, and kind: feature (default), step, job, material, property or meshPart")
            ->check(RefuseEmptyName)
            ->required();
        TakesFile(app->add_option("--output", m_import.output, "Write the document to this file (default: stdout)"));
    }
    static CLI::Option* TakesFile(CLI::Option* option) { return option->type_name("FILE")->check(RefuseEmptyName); }
    static void AddDocument(CLI::App* app, std::string& document) {
        app->add_option("DOCUMENT", document, "The document file, or - for stdin")->required()->check(RefuseEmptyName);
    }

    CLI::App m_app{"Checks, proposes and changes the names of features in an analysis document.", "qvrnames"};
    Console m_console;
    std::string m_colour = "auto";
    std::string m_language;
    CheckRequest m_check;
    AuditRequest m_audit;
    std::string m_deckDocument;
    ProposeRequest m_propose;
    RenameRequest m_rename;
    FixRequest m_fix;
    std::string m_explained;
    ImportRequest m_import;
    std::function<int()> m_command;
};

} // namespace

int Run(int argc, const char* const* argv, std::ostream& out, std::ostream& err, const Screen& screen) {
    std::string message;
    try {
        const int code = CommandLine(out, err, screen).Run(argc, argv);
        if (out.flush())
            return code;
        message = "the result cannot be written";
    } catch (const std::bad_alloc&) {
        message = "out of memory";
    } catch (const std::exception& error) {
        message = error.what();
    }
    std::istringstream lines(message); // candidates of a reference are listed in further lines
    err << "qvrnames: ";
    for (std::string line; std::getline(lines, line);)
        err << Printable(line) << std::endl;
    return kBadInput;
}
