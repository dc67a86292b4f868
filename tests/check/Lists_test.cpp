#include "check/Lists.h"

#include <algorithm>

#include "tests/support/Tool.h"

namespace tarnvik {
namespace {

using test::Json;
using test::Tool;
using test::ToolRun;

TEST(Lists, a_table_has_a_heading_and_a_row_each) {
    EXPECT_EQ(Tool({"--list", "bolts"}).out, "bolt      d  fuk\n"
                                             "M12x4.6  12  400\n"
                                             "M16x4.6  16  400\n"
                                             "M20x4.6  20  400\n"
                                             "M24x4.6  24  400\n"
                                             "M12x8.8  12  800\n"
                                             "M16x8.8  16  800\n"
                                             "M20x8.8  20  800\n"
                                             "M24x8.8  24  800\n");
    EXPECT_EQ(Tool({"--list", "bolts"}).status, 0);
}

TEST(Lists, every_list_as_table_and_as_json) {
    struct Row {
        const char* list;
        std::size_t rows;
        const char* first; // as JSON
    };
    // clang-format off
    const Row rows[] = {
        {"bolts",       8, R"({"bolt":"M12x4.6","d":12,"fuk":400})"},
        {"connectors",  5, R"({"connector":"D50","dc":50,"hc":13,"bolts":"M12x4.6 M16x4.6 M12x8.8 M16x8.8"})"},
        {"materials",  37, R"({"material":"C14","type":"T","fc90k":2,"dens":290})"},
        {"profiles",  220, R"({"profile":"T  28x70","type":"T","b":28,"h":70})"},
        {"joints",     15, R"({"joint":"1.1","member 1":"single","member 2":"single","shear planes":1,"splits":"member 2"})"},
        {"cases",      35, R"({"case":"1.1. ","type":1,"bolts":1,"layout":"any"})"},
        {"inputs",     48, R"({"input":"bolt","written as":"--bolt","allowed":"a bolt, such as M16x8.8","meaning":"bolt: diameter and grade"})"},
    };
    // clang-format on
    EXPECT_EQ(std::size(rows), List_names().size());
    for (const Row& row : rows) {
        const ToolRun json = Tool({"--json", "--list", row.list});
        EXPECT_EQ(json.status, 0) << row.list;
        const Json values = json.Object();
        EXPECT_EQ(values.size(), row.rows) << row.list;
        EXPECT_EQ(values.front().dump(), row.first) << row.list;
        const std::string table = Tool({"--list", row.list}).out;
        EXPECT_EQ(static_cast<std::size_t>(std::count(table.begin(), table.end(), '\n')), row.rows + 1) << row.list;
    }
}

TEST(Lists, what_is_listed_can_be_asked_for) {
    struct Row {
        const char* list;
        const char* option;
    };
    const Row rows[] = {
        {"bolts", "--bolt"},       {"connectors", "--connector"}, {"materials", "--material"},
        {"profiles", "--member2"}, {"joints", "--joint"},
    };
    for (const Row& row : rows) {
        const Json list = Tool({"--json", "--list", row.list}).Object();
        for (const Json& object : list) {
            const ToolRun run = Tool({row.option, object.begin().value().get<std::string>()});
            EXPECT_EQ(run.err, "") << object;
        }
    }
}

TEST(Lists, refusals) {
    EXPECT_EQ(Tool({"--list", "bolt"}).err,
              "tarnvik-check: --list: expected one of bolts,connectors,materials,profiles,joints,cases,inputs, got "
              "\"bolt\"\n");
    EXPECT_EQ(Tool({"--list", "bolts", "a.tnvik"}).err,
              "tarnvik-check: --list: expected no project, and no --save, --report, --sheet, --with or --fields\n");
    EXPECT_EQ(Tool({"--list", "bolts", "--batch"}).status, 2);
}

} // namespace
} // namespace tarnvik
