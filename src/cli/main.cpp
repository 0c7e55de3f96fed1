#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <new>

#include "automation/AutomationError.h"
#include "cli/CommandsCommand.h"
#include "cli/Failure.h"
#include "cli/Version.h"
#include "cli/cell/CellCommand.h"
#include "cli/diff/DiffCommand.h"
#include "cli/keys/KeysCommand.h"
#include "cli/menu/MenuCommand.h"
#include "cli/prefs/PrefsCommand.h"
#include "cli/run/RunCommand.h"
#include "cli/show/ShowCommand.h"
#include "cli/trace/TraceCommand.h"
#include "host/xlsx/PackageError.h"

namespace kestrune::cli {
namespace {

constexpr const char* about = "Formats, colours and restructures Excel models from the command line.";
constexpr const char* examples = R"(
Examples:
  kestrune run model.xlsx -o out.xlsx @Inputs!C5:G20 20 21.2
      Selects cells, steps the Currency SmartCycle, applies entry 2 of the Percent SmartCycle.
  kestrune commands
      Lists the 103 commands.
  kestrune menu model.xlsx Kestrune/Format
      Shows what stands on the menu; menu:Kestrune/Format/Currency/3 is the step that clicks.
  kestrune cell model.xlsx Inputs!C5 --json
      Says everything about a cell.
  kestrune trace model.xlsx Inputs!C5 --dependents --depth 3
      Lists what is worked out from a cell, three levels far.
  kestrune show model.xlsx --html model.html
      Draws the workbook as a page.
  kestrune diff model.xlsx out.xlsx
      Lists what changed between two workbooks.
  kestrune prefs show
      Shows your settings: styles, SmartCycles, colours, options.

Exit status: 0 done, 1 a command or a file failed (nothing is written), 2 wrong usage.)";

// The settings that a command works by.
void add_settings(CLI::App& command, std::string& preferences, std::vector<std::string>& settings) {
    command.add_option("--prefs", preferences, "The preferences file to work by; your own unless given");
    command.add_option("--set", settings, "Another value for one setting, for this run: SmartCopyRight.Rule=ALWAYS")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
}

void add_run(CLI::App& app, RunOptions& options) {
    CLI::App* command = app.add_subcommand("run", "Run a session of steps on a workbook");
    command->add_option("WORKBOOK", options.workbook, "The .xlsx or .xlsm file to open")->required();
    command->add_option("-o,--output", options.output, "Where to save the workbook");
    command->add_flag("--in-place", options.in_place, "Save the workbook over itself");
    command->add_flag("--force", options.force, "Save a signed workbook that was changed, without its signature");
    command->add_option("--answer", options.answer, "Answer to every question: ok, cancel, yes, no, or ask")
        ->capture_default_str();
    command->add_flag("--json", options.json, "Report each step as JSON");
    command->add_flag("--timing", options.timing, "Tell how long each step took");
    command->add_flag("--trace", options.trace, "Tell on standard error what commands skipped");
    add_settings(*command, options.prefs, options.settings);
    command->add_option("STEP", options.steps,
                        "@Sheet1!B2:C5 selects, 20 or 20.3 runs a command, key:Ctrl+Shift+4 presses a key, "
                        "menu:Kestrune/Format/Currency/3 clicks, undo:2 undoes, redo, history, RunAutoColor a member");
    command->footer(
        "Steps run from left to right in one session; without steps the workbook is saved as it is.\n"
        "Without -o and --in-place nothing is saved.\n"
        "Tools with a dialog show it to whoever --answer names; --set fSmartCopy.optAll=True fills in a control of "
        "it.");
    command->callback([&options] { run(options); });
}

void add_prefs(CLI::App& app, PrefsOptions& options) {
    CLI::App* command = app.add_subcommand("prefs", "Show and exchange the user settings");
    command->require_subcommand(1);
    command->footer("'kestrune run --prefs FILE' works by a file, '--set NAME=VALUE' changes one setting for a run.");
    const auto add = [&](const char* name, const char* what, void (*act)(const PrefsOptions&)) {
        CLI::App* action = command->add_subcommand(name, what);
        action->add_option("--prefs", options.prefs, "The preferences file; your own unless given");
        action->callback([&options, act] { act(options); });
        return action;
    };
    const auto add_answer = [&](CLI::App* action) {
        action->add_option("--answer", options.answer, "Answer to every question: ok, cancel, or ask")
            ->capture_default_str();
    };
    add("show", "Show all settings", show_prefs)->add_flag("--json", options.json, "As JSON");
    add("init", "Make a file of the default settings where there is none", init_prefs);
    CLI::App* import = add("import", "Take all settings of another file", import_prefs);
    import->add_option("FILE", options.other, "The preferences file to take them from")->required();
    add_answer(import);
    add("export", "Save the settings to another file", export_prefs)
        ->add_option("FILE", options.other, "The file to save them to")
        ->required();
    add_answer(add("restore", "Give all settings their defaults", restore_prefs));
}

struct CellOptions {
    std::string workbook;
    std::vector<std::string> references;
    bool json = false;
};

void add_cell(CLI::App& app, CellOptions& options) {
    CLI::App* command = app.add_subcommand("cell", "Say everything about cells: value, formula, formats");
    command->add_option("WORKBOOK", options.workbook, "The .xlsx or .xlsm file to open")->required();
    command->add_option("REF", options.references, "Cells: Inputs!C5, B2:D4 or a defined name")->required();
    command->add_flag("--json", options.json, "One JSON object a cell");
    command->callback([&options] { describe_cells(options.workbook, options.references, options.json); });
}

void add_commands(CLI::App& app, CommandsOptions& options) {
    CLI::App* command = app.add_subcommand("commands", "List the 103 commands");
    auto* json = command->add_flag("--json", options.json, "As JSON");
    command->add_option("--html", options.html, "Write them as the product's help page")->excludes(json);
    command->callback([&options] { list_commands(options); });
}

void add_show(CLI::App& app, ShowOptions& options) {
    CLI::App* command = app.add_subcommand("show", "Show a sheet as a person sees it");
    command->add_option("WORKBOOK", options.workbook, "The .xlsx or .xlsm file to open")->required();
    command->add_option("RANGE", options.range, "Cells to show; the active sheet when left out");
    command->add_option("--html", options.html, "Write a page instead of drawing in the terminal");
    command->add_option("--color", options.color, "Colours in the terminal: auto, always or never")
        ->capture_default_str();
    command->add_flag("--classes", options.classes, "Show what AutoColor sees in cells instead of their colours");
    command->add_flag("--json", options.json, "The classes as JSON, one object a cell");
    add_settings(*command, options.prefs, options.settings);
    command->callback([&options] { show(options); });
}

void add_menu(CLI::App& app, MenuOptions& options) {
    CLI::App* command = app.add_subcommand("menu", "Show the menus and the toolbar as a tree, with keys and requests");
    command->add_option("WORKBOOK", options.workbook, "The .xlsx or .xlsm file to open")->required();
    command->add_option("MENU", options.path, "Only what this opens, captions or numbers: Kestrune/Format/Currency");
    command->add_flag("--json", options.json, "As JSON");
    add_settings(*command, options.prefs, options.settings);
    command->footer("'kestrune run WORKBOOK menu:Kestrune/Format/Currency/3' clicks.");
    command->callback([&options] { show_menus(options); });
}

void add_trace(CLI::App& app, TraceOptions& options) {
    CLI::App* command = app.add_subcommand("trace", "List what a cell refers to, or what refers to it");
    command->add_option("WORKBOOK", options.workbook, "The .xlsx or .xlsm file to open")->required();
    command->add_option("CELL", options.cell, "The cell: Inputs!C5 or a defined name")->required();
    auto* precedents =
        command->add_flag("--precedents", options.precedents, "What it refers to; unless told otherwise");
    command->add_flag("--dependents", options.dependents, "The cells of all sheets that refer to it")
        ->excludes(precedents);
    command->add_option("--depth", options.depth, "So many levels; 0 follows everything to its end")
        ->check(CLI::NonNegativeNumber)
        ->type_name("N")
        ->capture_default_str();
    command->add_flag("--json", options.json, "One JSON object a place");
    command->callback([&options] { trace(options); });
}

void add_diff(CLI::App& app, DiffOptions& options) {
    CLI::App* command = app.add_subcommand("diff", "List what changed between two workbooks");
    command->add_option("A", options.before, "The workbook before")->required();
    command->add_option("B", options.after, "The workbook after")->required();
    command->add_flag("--json", options.json, "One JSON object a change");
    command->callback([&options] { diff(options); });
}

void add_keys(CLI::App& app, KeysOptions& options) {
    CLI::App* command = app.add_subcommand("keys", "List and change the hot keys");
    command->add_flag("--json", options.json, "As JSON");
    command->require_subcommand(0, 1);
    const auto add = [&](const char* name, const char* help, const char* operation,
                         std::initializer_list<std::pair<const char*, const char*>> arguments, bool required = true) {
        CLI::App* action = command->add_subcommand(name, help);
        auto words = std::make_shared<std::vector<std::string>>(arguments.size());
        std::size_t place = 0;
        for (const auto& [argument, what] : arguments) {
            action->add_option(argument, (*words)[place++], what)->required(required);
        }
        action->add_flag("--json", options.json, "All keys afterwards, as JSON");
        action->callback([&options, words, operation] {
            options.operation = operation;
            options.arguments = *words;
        });
    };
    constexpr const char* which = "The command: its number, or BRUndo, BRRedo";
    add("set", "Give a command a key", "SetKey", {{"COMMAND", which}, {"KEY", "The key, such as Ctrl+Shift+4"}});
    add("clear", "Take a command's key away", "ClearKey", {{"COMMAND", which}});
    add("reset", "Give a command its default key back, or all of them", "ResetKey", {{"COMMAND", which}}, false);
    add("swallow", "Have a key do nothing, in Excel either", "Swallow", {{"KEY", "The key"}});
    add("release", "Give such a key back to Excel", "Unswallow", {{"KEY", "The key"}});
    add("on", "Switch all hot keys on", "On", {});
    add("off", "Switch all hot keys off", "Off", {});
    command->callback([&options] { manage_keys(options); });
}

// What the person typed, and what it needs while it runs.
int run_program(int argc, char** argv) {
    CLI::App app(about, "kestrune");
    app.footer(examples);
    app.set_version_flag("--version", fmt::format("kestrune {}", version));
    app.require_subcommand(1);
    RunOptions run_options;
    CellOptions cell_options;
    ShowOptions show_options;
    DiffOptions diff_options;
    TraceOptions trace_options;
    CommandsOptions commands_options;
    KeysOptions keys_options;
    MenuOptions menu_options;
    PrefsOptions prefs_options;
    add_run(app, run_options);
    add_commands(app, commands_options);
    add_keys(app, keys_options);
    add_menu(app, menu_options);
    add_cell(app, cell_options);
    add_trace(app, trace_options);
    add_show(app, show_options);
    add_diff(app, diff_options);
    add_prefs(app, prefs_options);
    try {
        app.parse(argc, argv);
        return done;
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) {
            app.exit(error);  // --help, --version
            return done;
        }
        fmt::print(stderr, "kestrune: {}; 'kestrune --help' tells more\n", error.what());
        return wrong_usage;
    }
}

}  // namespace
}  // namespace kestrune::cli

int main(int argc, char** argv) {
    using namespace kestrune;
    try {
        return cli::run_program(argc, argv);
    } catch (const cli::Failure& failure) {
        fmt::print(stderr, "kestrune: {}\n", failure.what());
        return failure.status();
    } catch (const host::PackageError& error) {
        fmt::print(stderr, "kestrune: {}\n", error.what());
    } catch (const automation::AutomationError& error) {
        fmt::print(stderr, "kestrune: {}\n", error.what());
    } catch (const std::bad_alloc&) {
        fmt::print(stderr, "kestrune: out of memory\n");
    } catch (const std::exception& error) {
        fmt::print(stderr, "kestrune: internal error: {}\n", error.what());
    }
    return cli::failed;
}
