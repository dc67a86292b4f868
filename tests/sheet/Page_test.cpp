#include "sheet/Page.h"

#include <gtest/gtest.h>

namespace tarnvik {
namespace {

TEST(Page, texts_are_escaped_and_markup_is_not) {
    Page page;
    page.Heading("a < b & \"c\"");
    page.Begin_table("look", "d & e", {"f", {"g", "n"}});
    page.Row({"<h>", {Markup{"<i>x</i>"}, "n"}}, "sum");
    page.End_table();
    EXPECT_EQ(page.Html(),
              "<h2>a &lt; b &amp; &quot;c&quot;</h2>\n"
              "<table class=\"look\">\n<caption>d &amp; e</caption>\n"
              "<thead><tr><th scope=\"col\">f</th><th scope=\"col\" class=\"n\">g</th></tr></thead>\n"
              "<tbody>\n<tr class=\"sum\"><th scope=\"row\">&lt;h&gt;</th><td class=\"n\"><i>x</i></td></tr>\n"
              "</tbody>\n</table>\n");
}

TEST(Page, an_index_is_a_subscript) {
    EXPECT_EQ(Indexed("f_{c,90,k} < t_{1}").html, "f<sub>c,90,k</sub> &lt; t<sub>1</sub>");
    EXPECT_EQ(Indexed("plain").html, "plain");
}

} // namespace
} // namespace tarnvik
