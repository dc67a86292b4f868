#include "sheet/Formula.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "calc/Text.h"
#include "tests/support/Calculation.h"

namespace tarnvik {
namespace {

ConnectionValues Values() {
    ConnectionValues s;
    s.d = 16.0F;
    s.t1 = 48.0F;
    s.t2 = 36.0F;
    s.fh1k = 24.0F;
    s.fh2k = 20.0F;
    s.beta = 0.8F;
    s.My_Rk = 324282.0F;
    s.alp = 30.0F;
    return s;
}

double Value(const char* notation) {
    return Formula{notation}.Value(Values());
}

TEST(Formula, has_the_value_of_its_numbers) {
    EXPECT_DOUBLE_EQ(Value("2 + 3*4 - 6/3"), 12.0);
    EXPECT_DOUBLE_EQ(Value("(2 + 3)*4"), 20.0);
    EXPECT_DOUBLE_EQ(Value("10 - 4 - 3"), 3.0);
    EXPECT_DOUBLE_EQ(Value("16/4/2"), 2.0);
    EXPECT_DOUBLE_EQ(Value("16:4*2"), 8.0);
    EXPECT_DOUBLE_EQ(Value("2*3^2"), 18.0);
    EXPECT_DOUBLE_EQ(Value("sqrt(9) + max(1; 4; 2) + min(3; 2)"), 9.0);
    EXPECT_DOUBLE_EQ(Value("fh1k*t1*d"), 24.0 * 48.0 * 16.0);
    EXPECT_NEAR(Value("sin(alpha)^2 + cos(alpha)^2"), 1.0, 1e-12);
    EXPECT_NEAR(Value("sin(alpha)"), 0.5, 1e-5); // 57.297 degrees per radian
}

// Mode d of (8.6) by hand: 1.05*24*48*16/2.8 = 6912; 2*0.8*1.8 = 2.88; 4*0.8*2.8*324282/(24*16*48^2) = 3.2841;
// sqrt(6.1641) = 2.48276; 6912*(2.48276 - 0.8) = 11631.
TEST(Formula, of_a_failure_mode_agrees_with_a_hand_calculation) {
    EXPECT_NEAR(
        Value("1.05*fh1k*t1*d/(2 + beta)*(sqrt(2*beta*(1 + beta) + 4*beta*(2 + beta)*My_Rk/(fh1k*d*t1^2)) - beta)"),
        11631.0, 2.0);
}

TEST(Formula, is_written_with_symbols_and_with_the_numbers_as_they_are_shown) {
    const Formula formula{"fh1k*t1*d"};
    EXPECT_EQ(
        formula.Symbols(),
        R"(<math><msub><mi>f</mi><mtext>h,1,k</mtext></msub><mo rspace="0.1em" lspace="0.05em">&#x2062;</mo>)"
        R"(<msub><mi>t</mi><mtext>1</mtext></msub><mo rspace="0.1em" lspace="0.05em">&#x2062;</mo><mi>d</mi></math>)");
    EXPECT_EQ(formula.Numbers(Values()), "<math><mn>24.00</mn><mo>·</mo><mn>48.00</mn><mo>·</mo><mn>16</mn></math>");
}

TEST(Formula, has_brackets_where_they_are_needed_and_nowhere_else) {
    const auto numbers = [](const char* notation) { return Formula{notation}.Numbers(Values()); };
    EXPECT_EQ(numbers("2*(3 + 4)"),
              "<math><mn>2</mn><mo>·</mo><mrow><mo>(</mo><mn>3</mn><mo>+</mo><mn>4</mn><mo>)</mo></mrow></math>");
    EXPECT_EQ(numbers("2/(3 + 4)"),
              "<math><mfrac><mrow><mn>2</mn></mrow><mrow><mn>3</mn><mo>+</mo><mn>4</mn></mrow></mfrac></math>");
    EXPECT_EQ(numbers("5 - (3 - 4)"), "<math><mn>5</mn><mo>−</mo><mrow><mo>(</mo><mn>3</mn><mo>−</mo><mn>4</mn>"
                                      "<mo>)</mo></mrow></math>");
    EXPECT_EQ(numbers("(2*3)^2"), "<math><msup><mrow><mrow><mo>(</mo><mn>2</mn><mo>·</mo><mn>3</mn><mo>)</mo></mrow>"
                                  "</mrow><mrow><mn>2</mn></mrow></msup></math>");
    EXPECT_EQ(numbers("6:(2 + 1)"),
              R"(<math><mrow><mn>6</mn><mo lspace="0" rspace="0">/</mo><mrow><mo>(</mo><mn>2</mn>)"
              "<mo>+</mo><mn>1</mn><mo>)</mo></mrow></mrow></math>");
}

TEST(Formula, numbers_have_the_decimal_sign_of_the_system) {
    Set_decimal_sign(',');
    const std::string numbers = Formula{"1.05*t1"}.Numbers(Values());
    Set_decimal_sign('.');
    EXPECT_EQ(numbers, "<math><mn>1,05</mn><mo>·</mo><mn>48,00</mn></math>");
}

TEST(Formula, what_is_not_in_the_notation_is_refused) {
    for (const char* wrong : {"", "2 +", "(2", "2)", "unknown", "2 3", "sin(alpha", "max(1; )", "*2", "2 # 3"}) {
        EXPECT_THROW(Formula{wrong}, std::invalid_argument) << wrong;
    }
}

} // namespace
} // namespace tarnvik
