#include "check/Options.h"

#include <algorithm>

#include "calc/StateFields.h"
#include "calc/Version.h"
#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using test::Tool;
using Arguments = std::vector<std::string>;

TEST(Options, nothing_given_nothing_set) {
    const Options options = Parse_options({});
    EXPECT_EQ(options.data, "");
    EXPECT_FALSE(options.lang);
    EXPECT_TRUE(options.set.empty());
    EXPECT_FALSE(options.json);
    EXPECT_FALSE(options.batch);
    EXPECT_EQ(options.jobs, 1);
    EXPECT_FALSE(options.help);
    EXPECT_FALSE(options.version);
    EXPECT_TRUE(options.with.empty());
    EXPECT_FALSE(options.fields);
    EXPECT_FALSE(options.save);
    EXPECT_TRUE(options.projects.empty());
}

TEST(Options, every_option) {
    const Options options =
        Parse_options({"--data", "dir", "--lang", "Nor", "--set", "P=1", "--set", "Id=a=b", "--set", "Id=", "--with",
                       "screen", "--fields", "P,alp", "--save", "file", "--jobs", "4", "a.tnvik"});
    EXPECT_EQ(options.data, "dir");
    EXPECT_EQ(options.lang, "Nor");
    const std::vector<std::pair<std::string, std::string>> set{{"P", "1"}, {"Id", "a=b"}, {"Id", ""}};
    EXPECT_EQ(options.set, set);
    EXPECT_TRUE(options.json); // --with and --fields say what the JSON holds
    EXPECT_EQ(options.with, (Arguments{"screen"}));
    EXPECT_EQ(options.fields, (Arguments{"P", "alp"}));
    EXPECT_EQ(options.save, "file");
    EXPECT_EQ(options.jobs, 4);
    EXPECT_EQ(options.projects, (Arguments{"a.tnvik"}));
    EXPECT_TRUE(Parse_options({"--json"}).json);
    EXPECT_TRUE(Parse_options({"--batch"}).batch);
    EXPECT_TRUE(Parse_options({"--batch"}).json);
    EXPECT_TRUE(Parse_options({"--help"}).help);
    EXPECT_TRUE(Parse_options({"--version"}).version);
}

TEST(Options, a_value_may_be_attached) {
    const Options options = Parse_options({"--data=dir", "--lang=Eng", "--set=P=1", "--save=a b"});
    EXPECT_EQ(options.data, "dir");
    EXPECT_EQ(options.lang, "Eng");
    ASSERT_EQ(options.set.size(), 1U);
    EXPECT_EQ(options.set[0].first, "P");
    EXPECT_EQ(options.set[0].second, "1");
    EXPECT_EQ(options.save, "a b");
}

TEST(Options, behind_two_dashes_stand_projects_only) {
    EXPECT_EQ(Parse_options({"--", "--json", "-x"}).projects, (Arguments{"--json", "-x"}));
    EXPECT_EQ(Parse_options({"a", "--json", "b"}).projects, (Arguments{"a", "b"}));
}

TEST(Options, wrong_usage_names_what_was_wrong_and_what_was_expected) {
    struct Row {
        const char* name;
        Arguments arguments;
        Arguments words; // in the message
    };
    // clang-format off
    const Row rows[] = {
        {"unknown option",      {"--jsn"},                        {"--jsn", "--help"}},
        {"no pictures folder",  {"--pictures"},                   {"--pictures", "expected a folder"}},
        {"no report file",      {"--report"},                     {"--report", "expected a file"}},
        {"report of a batch",   {"--batch", "--report", "f"},     {"--report", "expected one project, or none"}},
        {"report of two",       {"--report", "f", "a", "b"},      {"--report", "expected one project, or none"}},
        {"short option",        {"-j"},                           {"-j"}},
        {"no folder",           {"--data"},                       {"--data", "expected a folder"}},
        {"no language",         {"--lang"},                       {"--lang", "expected Eng or Nor"}},
        {"other language",      {"--lang", "Swe"},                {"--lang", "expected Eng or Nor", "Swe"}},
        {"no input",            {"--set"},                        {"--set", "expected NAME=VALUE"}},
        {"input without value", {"--set", "P"},                   {"--set", "expected NAME=VALUE", "\"P\""}},
        {"input without name",  {"--set", "=1"},                  {"--set", "expected NAME=VALUE", "\"=1\""}},
        {"unknown input",       {"--set", "Pp=1"},                {"\"Pp\"", "input", "--help"}},
        {"result as input",     {"--set", "uf=1"},                {"\"uf\"", "input"}},
        {"unknown group",       {"--with", "scren"},              {"--with", "scren", "expected screen"}},
        {"unknown field",       {"--fields", "P,Pp"},             {"--fields", "\"Pp\""}},
        {"value too many",      {"--json=1"},                     {"--json takes no value\n"}},
        {"batch and project",   {"--batch", "a.tnvik"},           {"--batch starts every line from a new project: expected no project, got \"a.tnvik\"\n"}},
        {"save a batch",        {"--batch", "--save", "f"},       {"--save: expected one project, or none\n"}},
        {"save two projects",   {"--save", "f", "a", "b"},        {"--save: expected one project, or none\n"}},
    };
    // clang-format on
    for (const Row& row : rows) {
        const test::ToolRun run = Tool(row.arguments);
        EXPECT_EQ(run.status, exit_usage) << row.name;
        EXPECT_EQ(run.out, "") << row.name;
        EXPECT_EQ(run.err.substr(0, 15), "tarnvik-check: ") << row.name;
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << row.name;
        for (const std::string& word : row.words) {
            EXPECT_NE(run.err.find(word), std::string::npos) << row.name << ": " << word << " in " << run.err;
        }
    }
}

TEST(Options, help_and_version_go_to_standard_output) {
    for (const Arguments& arguments : {Arguments{"--help"}, Arguments{"--set", "P=x", "--help", "missing.tnvik"}}) {
        const test::ToolRun run = Tool(arguments);
        EXPECT_EQ(run.status, exit_holds);
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.out.substr(0, 20), "Usage: tarnvik-check");
    }
    EXPECT_EQ(Tool({"-h"}).out, Help_text());
    for (const char* option : {"--version", "-V"}) {
        EXPECT_EQ(Tool({option}).out, "tarnvik-check 1.2.0\n");
        EXPECT_EQ(Tool({option}).status, exit_holds);
    }
    EXPECT_EQ(Tool({"--version", "--json"}).out,
              "{\"name\":\"tarnvik-check\",\"version\":\"1.2.0\",\"standard\":\"EN 1995-1-1:2004+A1:2008\"}\n");
}

TEST(Options, the_help_fits_a_terminal) {
    std::istringstream lines{Help_text()};
    for (std::string line; std::getline(lines, line);) {
        EXPECT_LE(line.size(), 88U) << line;
    }
}

TEST(Options, the_inputs_are_those_that_a_user_can_choose) {
    const Arguments expected{
        "Lang",   "Prosjekt",  "Id",      "Lastvar",       "Klima",       "gm_T",        "gm_L",
        "gm_Ke",  "gm_K",      "P",       "Mat_index",     "Standard",    "Prof1_index", "Prof2_index",
        "Txt_b1", "Txt_h1",    "Txt_b2",  "Txt_h2",        "Con_type",    "enk_1",       "dob_1",
        "enk_2",  "dob_2",     "alp",     "Kun_bolt",      "Med_bulldog", "Bolt_index",  "Bulldog_index",
        "dc",     "Ant_index", "Bolt_ab", "Avstand_index", "Man_he_on",   "man_he"};
    Arguments names;
    for (const StateField& field : State_fields()) {
        if (field.is_input) {
            names.emplace_back(field.name);
        }
    }
    EXPECT_TRUE(std::is_permutation(names.begin(), names.end(), expected.begin(), expected.end()));
    for (const std::string& name : expected) {
        EXPECT_NE(Help_text().find(" " + name), std::string::npos) << name;
    }
}

// Words that begin with two dashes.
TEST(Options, one_task_at_a_time) {
    const std::vector<Arguments> tasks{{"--list", "bolts"},  {"--batch"},         {"--sweep", "P=0:1:1"}, {"--find"},
                                       {"--loads", "f.csv"}, {"--pictures", "."}, {"--verify", "f.html"}};
    for (std::size_t i = 0; i < tasks.size(); ++i) {
        for (std::size_t k = i + 1; k < tasks.size(); ++k) {
            Arguments both = tasks[k];
            both.insert(both.end(), tasks[i].begin(), tasks[i].end());
            const test::ToolRun run = Tool(both);
            EXPECT_EQ(run.err,
                      "tarnvik-check: " + tasks[i][0] + ", " + tasks[k][0] + ": expected one of them, got both\n");
            EXPECT_EQ(run.status, 2);
        }
        if (tasks[i][0] == "--batch") {
            continue;
        }
        // None of them has the result of a check.
        for (const Arguments& result :
             {Arguments{"--save", "a.tnvik"}, Arguments{"--report", "a.pdf"}, Arguments{"--sheet", "a.html"},
              Arguments{"--with", "screen"}, Arguments{"--fields", "uf"}, Arguments{"a.tnvik", "b.tnvik"}}) {
            Arguments arguments = tasks[i];
            arguments.insert(arguments.end(), result.begin(), result.end());
            EXPECT_TRUE(
                Tool(arguments).err.ends_with(" project, and no --save, --report, --sheet, --with or --fields\n") ||
                Tool(arguments).err.ends_with(
                    " project or none, and no --save, --report, --sheet, --with or --fields\n"))
                << Tool(arguments).err;
        }
    }
}

Arguments Options_in(const std::string& text) {
    Arguments found;
    for (std::size_t at = text.find("--"); at != std::string::npos; at = text.find("--", at + 2)) {
        const std::size_t end = text.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-", at + 2);
        if (end > at + 2) {
            found.push_back(text.substr(at, end - at));
        }
    }
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

TEST(Options, the_manual_page_is_that_of_this_version) {
    const std::string page = test::Read_file(std::filesystem::path{TARNVIK_SOURCE_DIR} / "docs" / "tarnvik-check.1");
    EXPECT_NE(page.substr(0, page.find('\n')).find("\"Tarnvik " TARNVIK_VERSION "\""), std::string::npos);
}

TEST(Options, the_manual_page_tells_every_option_and_input_of_the_help) {
    std::string page = test::Read_file(std::filesystem::path{TARNVIK_SOURCE_DIR} / "docs" / "tarnvik-check.1");
    for (std::size_t at = page.find("\\-"); at != std::string::npos; at = page.find("\\-", at)) {
        page.erase(at, 1); // a dash of the page
    }
    EXPECT_EQ(Options_in(page), Options_in(Help_text()));
    for (const StateField& field : State_fields()) {
        if (field.is_input) {
            EXPECT_NE(page.find(field.name), std::string::npos) << field.name;
        }
    }
    for (const std::string& option : Options_in(Help_text())) {
        if (option != "--help" && option != "--version" && option != "--json" && option != "--batch" &&
            option != "--strict" && option != "--find") {
            EXPECT_NE(Tool({option}).err.find("expected"), std::string::npos) << option;
        }
    }
}

} // namespace
} // namespace tarnvik
