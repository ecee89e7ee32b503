#include "commands/CommandLine.h"

#include "ExitCode.h"
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
    "DOCUMENT is a file, or - for standard input. FEATURE is the id of a feature, its JSON pointer in\n"
    "the file (which begins with \"/\"), or its path of names, such as Static/Step-1/Pressure-1, of\n"
    "which the last part is enough when only one feature ends so.\n\n"
    "Messages are in English unless --language says otherwise; the locale changes nothing, so that\n"
    "scripts read the same everywhere.\n\n"
    "The program ends with 0 when all is well, 1 when a name is refused, 2 for input that cannot be\n"
    "used or a result that cannot be written.\n\n"
    "Example: qvrnames audit pump.json\n";

std::string Joined(const std::vector<std::string>& words) { return CLI::detail::join(words, ", "); }

/// The command line: what it may say, and the command that was asked for.
class CommandLine {
public:
    CommandLine(std::ostream& out, std::ostream& err, const Screen& screen) : m_console{out, err, screen} {
        m_app.set_version_flag("--version", "qvrnames " QVR_NAME_UTILITY_VERSION);
        m_app.allow_windows_style_options(false); // what begins with "/" is a path or a JSON pointer on every system
        m_app.require_subcommand(1);
        m_app.footer(kFooter);
        AddCommon(&m_app);
        AddCheck();
        AddAudit();
        AddDeck();
        AddPropose();
        AddRename();
    }

    int Parse(int argc, const char* const* argv) {
        try {
            m_app.parse(argc, argv);
        } catch (const CLI::ParseError& error) {
            if (error.get_exit_code() == 0) // help and version come this way
                return m_app.exit(error, m_console.out, m_console.err);
            throw BadInput(DescribeUnknownWord().value_or(error.what()) + "; see --help");
        }
        if (m_colour != "auto")
            m_console.screen.hasColour = m_colour == "always";
        if (!MessageCatalog::SetLanguage(m_language))
            throw BadInput("--language: there are no messages in \"" + m_language +
                           "\"; there are: " + Joined(MessageCatalog::Languages()));
        return m_command();
    }

private:
    /// A command or an option that there is not, with what may be meant; nothing for any other fault.
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
            return "there is no option " + name + "; " + Suggestion(name, known);
        }
        if (!parsed.empty())
            return std::nullopt;
        for (const CLI::App* command : m_app.get_subcommands({}))
            known.push_back(command->get_name());
        return "there is no command \"" + unknown.front() + "\"; " + Suggestion(unknown.front(), known);
    }

    void AddCommon(CLI::App* app) {
        app->add_flag("--json", m_console.isJson, "Tell the result as one JSON value");
        app->add_option("--color", m_colour,
                        "When to use colours: auto (on a terminal, unless NO_COLOR is set), always or never")
            ->check(CLI::IsMember({"auto", "always", "never"}))
            ->type_name("WHEN");
        app->add_option("--language", m_language, "The language of messages: en (unless given), de, fr or ja")
            ->type_name("LANG");
    }
    CLI::App* Add(const char* name, const char* description, const char* example, const std::function<int()>& command) {
        CLI::App* added = m_app.add_subcommand(name, description);
        AddCommon(added);
        added->footer(std::string("Example: qvrnames ") + example + "\n");
        added->callback([this, command] { m_command = command; });
        return added;
    }

    void AddCheck() {
        CLI::App* app = Add("check", "Is a text legal as the name of a feature, or of a file?",
                            "check Step-1 \"Static Step.2\"", [this] { return CheckNames(m_check, m_console); });
        app->add_option("NAME", m_check.names, "The names to check")->required()->expected(1, -1);
        app->add_flag("--file-name", m_check.areFileNames, "Check them as names of files");
    }
    void AddAudit() {
        CLI::App* app = Add("audit", "Check the name of every feature of a document.", "audit pump.json --json",
                            [this] { return AuditDocument(m_audit, m_console); });
        AddDocument(app, m_audit.document);
        app->add_flag("--deck", m_audit.withDeck,
                      "Check also the names in the solver deck: those that break a rule or are given twice");
    }
    void AddDeck() {
        CLI::App* app = Add("deck", "Show what the solver deck would call everything.", "deck pump.json",
                            [this] { return ShowDeck(m_deckDocument, m_console); });
        AddDocument(app, m_deckDocument);
    }
    void AddPropose() {
        CLI::App* app = Add("propose", "Propose the next free name for a feature.",
                            "propose pump.json new-load\n         qvrnames propose pump.json Static/Step-1 "
                            "--base \"Static Step-\"\n         qvrnames propose pump.json --job",
                            [this] { return ProposeName(m_propose, m_console); });
        AddDocument(app, m_propose.document);
        app->add_option("FEATURE", m_propose.feature, "The feature to be named");
        app->add_flag("--job", m_propose.isJob, "Propose the name of a new job instead");
        app->add_option("--base", m_propose.base,
                        "What the number is put after; that of the feature's type when it is not given");
    }
    void AddRename() {
        CLI::App* app = Add("rename", "Give a feature another name, if the name may be had.",
                            "rename pump.json Static/Step-1 \"Bolt Load\" --output new.json",
                            [this] { return RenameFeature(m_rename, m_console); });
        AddDocument(app, m_rename.document);
        app->add_option("FEATURE", m_rename.feature, "The feature to be renamed")->required();
        app->add_option("NAME", m_rename.name, "Its new name")->required();
        app->add_option("--output", m_rename.output,
                        "Write the document there and leave the file as it is; - is standard output, with\n"
                        "what is told on standard error, and where a document from standard input goes");
    }
    static void AddDocument(CLI::App* app, std::string& document) {
        app->add_option("DOCUMENT", document, "The document file, or - for standard input")->required();
    }

    CLI::App m_app{"Checks, proposes and changes names of features in an analysis document.", "qvrnames"};
    Console m_console;
    std::string m_colour = "auto";
    std::string m_language;
    CheckRequest m_check;
    AuditRequest m_audit;
    std::string m_deckDocument;
    ProposeRequest m_propose;
    RenameRequest m_rename;
    std::function<int()> m_command;
};

} // namespace

int Run(int argc, const char* const* argv, std::ostream& out, std::ostream& err, const Screen& screen) {
    std::string fault;
    try {
        const int code = CommandLine(out, err, screen).Parse(argc, argv);
        if (out.flush())
            return code;
        fault = "the result cannot be written";
    } catch (const std::bad_alloc&) {
        fault = "there is not enough memory";
    } catch (const std::exception& error) {
        fault = error.what();
    }
    std::istringstream lines(fault);
    err << "qvrnames: ";
    for (std::string line; std::getline(lines, line);)
        err << Printable(line) << std::endl;
    return kBadInput;
}
