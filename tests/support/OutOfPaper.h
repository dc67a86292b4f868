// A print target that fails at its nth text and fails the test where the print goes on.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string_view>

#include "calc/RuntimeFault.h"
#include "ports/PrintTarget.h"

namespace tarnvik::test {

class OutOfPaper final : public PrintTarget {
public:
    explicit OutOfPaper(int fails_at) : fails_at_(fails_at) {}
    void ScaleLeft(float /*x*/) override {}
    void ScaleTop(float /*y*/) override {}
    void ScaleWidth(float /*width*/) override {}
    void ScaleHeight(float /*height*/) override {}
    void CurrentX(float /*x*/) override {}
    void CurrentY(float /*y*/) override {}
    void FontName(std::string_view /*name*/) override {}
    void FontSize(float /*points*/) override {}
    void FontBold(bool /*on*/) override {}
    void FontItalic(bool /*on*/) override {}
    void DrawWidth(std::int16_t /*pixels*/) override {}
    void Line(float /*x1*/, float /*y1*/, float /*x2*/, float /*y2*/) override {}
    void PaintPicture(std::string_view /*picture*/, float /*x*/, float /*y*/, float /*width*/,
                      float /*height*/) override {}
    float TextWidth(std::string_view /*text*/) override { return 0.0F; }
    void Print(std::string_view /*text*/) override {
        if (++texts_ == fails_at_) {
            Raise(fault_path_access, "Print");
        }
    }
    void NewPage() override { ADD_FAILURE() << "it went on"; }
    void EndDoc() override { ADD_FAILURE() << "it ended the document"; }

private:
    int fails_at_;
    int texts_{};
};

} // namespace tarnvik::test
