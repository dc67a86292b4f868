#include "check/Loads.h"

#include "check/Options.h"
#include "platform/Path.h"
#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using test::Json;
using test::Names;
using test::Tool;
using test::ToolRun;
using Arguments = std::vector<std::string>;

// A joint and a table of its load cases.
class Loads : public testing::Test {
protected:
    [[nodiscard]] ToolRun Check(const std::string& table, const Arguments& further = {}) const {
        test::Write_file(Path_of(file), table);
        Arguments arguments{"--lang",     "Eng",    "--joint", "1.2",     "--member1", "2x48x198", "--member2",
                            "48x223",     "--bolt", "M16x8.8", "--bolts", "2",         "--layout", "b",
                            "--material", "C24",    "--angle", "40",      "--loads",   file};
        arguments.insert(arguments.end(), further.begin(), further.end());
        return Tool(arguments);
    }

    [[nodiscard]] LoadTable Read(const std::string& table) const {
        test::Write_file(Path_of(file), table);
        return Read_loads(file);
    }

    test::TemporaryFolder folder;
    std::string file = (folder / "loads.csv").string();
};

const char* const table = "name;force;load\nDead;-3,2;permanent\nSnow;-12,5;medium\nWind;4;short\n";

TEST_F(Loads, tables_of_every_kind) {
    struct Row {
        const char* text;
        float P;
        std::int16_t Lastvar;
    };
    const Row rows[] = {
        {"name,force,load\na,-12.5,medium\n", -12.5F, 3},
        {"name;force;load\r\na;-12,5;Medium\r\n", -12.5F, 3},
        {"\xEF\xBB\xBFname;force;load\na;-12,5kN;3\n", -12.5F, 3},
        {"Load,Name,FORCE\nshort,a,+7 kN\n", 7.0F, 4},
        {"name,#remark,force,load\na,\"of \"\"us\"\"\",800N,instantaneous\n", 0.8F, 5},
        {"name,force,load\na,\"-0,5\",long\n", -0.5F, 2},
        {"name,force,load\na,\u22122,permanent\n", -2.0F, 1}, // a minus sign
        {"name,force,load\n\na,0,1", 0.0F, 1},
        {"name;force;load;;\na;0;1;;\n;;;;\n", 0.0F, 1},
    };
    for (const Row& row : rows) {
        const LoadTable read = Read(row.text);
        ASSERT_EQ(read.loads.size(), 1U) << row.text;
        EXPECT_EQ(read.loads[0].name, "a");
        EXPECT_EQ(read.loads[0].P, row.P) << row.text;
        EXPECT_EQ(read.loads[0].Lastvar, row.Lastvar) << row.text;
    }
}

TEST_F(Loads, decimals_of_the_answer_are_those_of_the_table) {
    EXPECT_TRUE(Read("name;force;load\na;1,5;short\n").decimal_comma);
    EXPECT_TRUE(Read("name;force;load\na;15;short\n").decimal_comma); // as where ";" comes from
    EXPECT_FALSE(Read("name;force;load\na;1.5;short\n").decimal_comma);
    EXPECT_FALSE(Read("name,force,load\na,15,short\n").decimal_comma);
    EXPECT_TRUE(Read("name,force,load\na,\"1,5\",short\n").decimal_comma);
}

TEST_F(Loads, refusals_name_file_and_line) {
    struct Row {
        const char* text;
        const char* err;
    };
    // clang-format off
    const Row rows[] = {
        {"",                                           ": expected a heading with name, force and load, once each, got \"\""},
        {"name;kraft;load\n",                          ", line 1: expected a heading with name, force and load, once each, got \"name, kraft, load\""},
        {"name;force;load;name\n",                     ", line 1: expected a heading with name, force and load, once each, got \"name, force, load, name\""},
        {"name;force;load;note\n",                     ", line 1: expected name, force and load, got the column \"note\"; a column of your own begins with #"},
        {"name;force;load\na;1,5;short\nb;1.500;short\n", ", line 3: force: expected a decimal comma as in the cells before, got \"1.500\""},
        {"name;force;load\na;1.5;short\nb;1,5;short\n", ", line 3: force: expected a decimal point as in the cells before, got \"1,5\""},
        {"name;force;load;\na;1;short;x\n",             ", line 2: column 4 has no name: expected nothing in it, got \"x\""},
        {"name;force;load\n",                          ": expected a load case below the heading"},
        {"name;force;load\na;1\n",                     ", line 2: expected 3 cells as in the heading, got 2"},
        {"name;force;load\n;1;short\n",                ", line 2: name: expected a name, got nothing"},
        {"name;force;load\na;1;short\n\na;2;short\n",  ", line 4: name: expected each name once, got \"a\" again"},
        {"name;force;load\na;much;short\n",            ", line 2: force: expected a force such as -12.5 or -12.5kN, above 0 in compression, got \"much\""},
        {"name;force;load\na;1.234,5;short\n",         ", line 2: force: expected a force such as -12.5 or -12.5kN, above 0 in compression, got \"1.234,5\""},
        {"name;force;load\na;--1;short\n",             ", line 2: force: expected a force such as -12.5 or -12.5kN, above 0 in compression, got \"--1\""},
        {"name;force;load\na;;short\n",                ", line 2: force: expected a force such as -12.5 or -12.5kN, above 0 in compression, got \"\""},
        {"name;force;load\na;1;sort\n",                ", line 2: load: expected permanent, long, medium, short or instantaneous, got \"sort\"; nearest: short"},
        {"name;force;load\na;1;6\n",                   ", line 2: load: expected permanent, long, medium, short or instantaneous, got \"6\""},
        {"name;force;load\n\"a;1;short\n",             ", line 2: expected a quote at the end of the cell that one begins"},
    };
    // clang-format on
    for (const Row& row : rows) {
        const ToolRun run = Check(row.text);
        EXPECT_EQ(run.err, "tarnvik-check: " + file + row.err + "\n");
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.out, "");
    }
    EXPECT_EQ(Tool({"--loads", "/nowhere/loads.csv"}).err,
              "tarnvik-check: /nowhere/loads.csv: cannot be read: file not found\n");
}

TEST_F(Loads, a_summary_for_a_person) {
    const ToolRun run = Check(table);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.status, 0);
    const Json object = Check(table, {"--json"}).Object();
    const auto two = [](const Json& value) {
        char text[16];
        snprintf(text, sizeof text, "%.2f", value.get<double>());
        return std::string{text};
    };
    const Json& snow = object["cases"][1]["checks"];
    EXPECT_EQ(run.out.substr(0, run.out.find('\n')),
              "case  force, kN  class      kmod  utilisation  splitting  verdict");
    EXPECT_NE(run.out.find("\nSnow      -12.5  medium     0.80         " + two(snow["bolts"]["value"]) + "       " +
                           two(snow["splitting"]["value"]) + "  Holds\n"),
              std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("\n\nGoverning\nbolts      Snow: " + two(snow["bolts"]["value"]) +
                           " <= 1.00, mode h (8.7 h)\n"
                           "splitting  Snow: " +
                           two(snow["splitting"]["value"]) + " <= 1.00\n"),
              std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find(" <= 223.0 mm, bolts in member 2\nverdict    Holds\n"), std::string::npos) << run.out;
}

TEST_F(Loads, each_case_is_the_check_of_it) {
    const Json object = Check(table, {"--json"}).Object();
    EXPECT_EQ(Names(object), (Arguments{"holds", "text", "governing", "cases"}));
    EXPECT_EQ(object["holds"], true);
    ASSERT_EQ(object["cases"].size(), 3U);
    const Arguments forces[]{{"--tension", "3.2", "--load", "permanent"},
                             {"--tension", "12.5", "--load", "medium"},
                             {"--compression", "4", "--load", "short"}};
    const double kmod[]{0.6, 0.8, 0.9};
    for (std::size_t i = 0; i < 3; ++i) {
        Arguments arguments{"--lang",     "Eng",    "--joint", "1.2",     "--member1", "2x48x198", "--member2",
                            "48x223",     "--bolt", "M16x8.8", "--bolts", "2",         "--layout", "b",
                            "--material", "C24",    "--angle", "40",      "--json"};
        arguments.insert(arguments.end(), forces[i].begin(), forces[i].end());
        const Json& one = object["cases"][i];
        EXPECT_EQ(one["checks"], Tool(arguments).Object()["checks"]);
        EXPECT_EQ(one["kmod"], kmod[i]);
        EXPECT_EQ(Names(one), (Arguments{"name", "force", "load", "kmod", "checks"}));
    }
    EXPECT_EQ(object["cases"][1]["force"], -12.5);
    EXPECT_EQ(object["cases"][1]["load"], "medium");
    const Json& governing = object["governing"];
    EXPECT_EQ(Names(governing), (Arguments{"bolts", "splitting", "distances"}));
    const Json& checks = object["cases"][1]["checks"];
    EXPECT_EQ(governing["bolts"], (Json{{"name", "Snow"},
                                        {"check", "bolts"},
                                        {"value", checks["bolts"]["value"]},
                                        {"limit", 1},
                                        {"holds", true},
                                        {"mode", checks["governing"]["mode"]},
                                        {"equation", checks["governing"]["equation"]}}));
    EXPECT_EQ(governing["splitting"]["name"], "Snow");
    EXPECT_EQ(governing["distances"]["check"], "fits_b");
    EXPECT_EQ(governing["distances"]["limit"], 223);
}

TEST_F(Loads, csv_as_the_table_is_written) {
    const ToolRun run = Check(std::string{"\xEF\xBB\xBF"} + table, {"--csv"});
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out.find("\xEF\xBB\xBFname;force;load;kmod;utilisation;splitting;fits_a;fits_a_limit;fits_b;"
                           "fits_b_limit;connectors_fit_a;connectors_fit_a_limit;connectors_fit_b;"
                           "connectors_fit_b_limit;governing;holds;text;governs\nDead;-3,2;permanent;0,6;0,"),
              0U)
        << run.out;
    EXPECT_NE(run.out.find("\nSnow;-12,5;medium;0,8;0,"), std::string::npos);
    EXPECT_NE(run.out.find(";h;true;Holds;bolts splitting\n"), std::string::npos);
    EXPECT_EQ(run.out.find('.'), std::string::npos);
    const ToolRun point = Check("name,force,load\r\n\"a, b\",-3.2,permanent\r\n", {"--csv"});
    EXPECT_NE(point.out.find("\r\n\"a, b\",-3.2,permanent,0.6,0."), std::string::npos) << point.out;
    EXPECT_TRUE(point.out.ends_with(",Holds,bolts splitting distances\r\n"));
}

TEST_F(Loads, verdict_and_status_over_all) {
    const std::string heavy = std::string{table} + "Storm;-60;short\n";
    ToolRun run = Check(heavy);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.out.find("\nbolts      Storm: "), std::string::npos);
    EXPECT_NE(run.out.find(" > 1.00, mode h (8.7 h)\n"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("\nverdict    Does not hold: utilisation, splitting\n"), std::string::npos) << run.out;
    // What does not fit fails under --strict only, as in a single check.
    EXPECT_EQ(Check("name,force,load\na,0.1,short\n", {"--spacing", "20d"}).status, 0);
    run = Check("name,force,load\na,0.1,short\n", {"--strict", "--spacing", "20d", "--set", "Txt_h2=223"});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.out.find("\nverdict    Does not hold: distances of bolts\n"), std::string::npos) << run.out;
    // A he that the member does not have.
    run = Check(table, {"--set", "Man_he_on=true", "--set", "man_he=300"});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("\nsplitting  not checked\n"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("\nverdict    Splitting not checked\n"), std::string::npos);
    EXPECT_EQ(Check(table, {"--json", "--set", "Man_he_on=true", "--set", "man_he=300"}).Object()["holds"], nullptr);
    EXPECT_EQ(Check(table, {"--strict", "--set", "Man_he_on=true", "--set", "man_he=223"}).status, 1);
}

TEST_F(Loads, what_cannot_be_calculated) {
    const Arguments arguments{"--lang", "Eng", "--bolt", "M24x8.8", "--connector", "D50", "--loads", file};
    test::Write_file(Path_of(file), table);
    const ToolRun run = Tool(arguments);
    EXPECT_EQ(run.status, 3);
    EXPECT_NE(
        run.out.find("\nDead       -3.2  permanent  0.60            -          -  Not current: connector refused\n"),
        std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("\nbolts      not checked\nsplitting  not checked\ndistances  not checked\n"
                           "verdict    Not calculated: Dead, Snow, Wind\n"),
              std::string::npos)
        << run.out;
    Arguments json = arguments;
    json.emplace_back("--json");
    const Json object = Tool(json).Object();
    EXPECT_EQ(object["holds"], nullptr);
    EXPECT_EQ(object["governing"].dump(), R"({"bolts":null,"splitting":null,"distances":null})");
}

TEST_F(Loads, the_joint_may_not_be_anything) {
    const ToolRun run = Check(table, {"--set", "Klima=7", "--set", "Lastvar=9"});
    EXPECT_EQ(run.err, "tarnvik-check: --loads has force and load-duration class of every case: expected no "
                       "--set Lastvar beside it\n");
    EXPECT_EQ(Check(table, {"--set", "Klima=7"}).err, "tarnvik-check: warning: Klima: expected 1 to 3, got 7\n");
    EXPECT_EQ(Check(table, {"--set", "Klima=7", "--json"}).Object()["warnings"],
              Json::parse(R"(["Klima: expected 1 to 3, got 7"])"));
    EXPECT_EQ(Check(table, {"--set", "Klima=7", "--strict"}).status, 2);
    EXPECT_EQ(Check(table, {"--tension", "4"}).err,
              "tarnvik-check: --loads has force and load-duration class of every case: expected no --tension beside "
              "it\n");
    EXPECT_EQ(Check(table, {"--save", "a.tnvik"}).err,
              "tarnvik-check: --loads: expected one project or none, and no --save, --report, --sheet, --with or "
              "--fields\n");
}

} // namespace
} // namespace tarnvik
