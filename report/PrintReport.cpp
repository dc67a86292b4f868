#include "report/PrintReport.h"

#include "report/Sections.h"

namespace tarnvik {

void Print_at(PrintTarget& target, double x, double y, std::string_view text) {
    target.CurrentX(static_cast<float>(x));
    target.CurrentY(static_cast<float>(y));
    target.Print(text);
}

void Print_bold_at(PrintTarget& target, double x, double y, std::string_view text) {
    target.FontBold(true);
    Print_at(target, x, y, text);
    target.FontBold(false);
}

void Print_right(PrintTarget& target, double right, double y, std::string_view text) {
    Print_at(target, right - static_cast<double>(target.TextWidth(text)), y, text);
}

void Draw_line(PrintTarget& target, double x1, double y1, double x2, double y2) {
    target.Line(static_cast<float>(x1), static_cast<float>(y1), static_cast<float>(x2), static_cast<float>(y2));
}

std::string Report_title(const ConnectionState& s) {
    return s.Prosjekt + (s.Prosjekt.empty() || s.Id.empty() ? "" : ", ") + s.Id;
}

void PrintReport(PrintTarget& target, ConnectionState& s, const ReportPictures& pictures, const Moment& now,
                 SpacingTexts& texts) {
    // On A4 a unit is a millimetre.
    target.ScaleLeft(0.0F);
    target.ScaleTop(290.0F);
    target.ScaleWidth(200.0F);
    target.ScaleHeight(-290.0F);

    constexpr std::int16_t size = report_font_size;
    double row_step{};
    PrintHeader(target, s, now, 15, 290, 1);
    PrintSectionTitle(target, s, 1, 15, 268, size);
    PrintGeneral(target, s, 15, 262, size, row_step);
    PrintSectionTitle(target, s, 2, 15, 240, size);
    PrintPicture(target, pictures.Pic_forbindelse, 16, 229, 30, 30);
    PrintDimensions(target, s, 15, 235, size);
    PrintSectionTitle(target, s, 3, 15, 194, size);
    PrintLoad(target, s, 15, 188, size);
    PrintSectionTitle(target, s, 4, 15, 182, size);
    PrintCapacity(target, s, 16, 177); // PrintEquations fits this anchor
    PrintEquations(target, s);

    target.NewPage();
    PrintHeader(target, s, now, 15, 290, 2);
    PrintSectionTitle(target, s, 5, 15, 265, size);
    PrintPicture(target, pictures.Pic_av_bolter, 10, 255, 65, 67.6);
    PrintSpacing(target, s, texts, 15, 262);
    if (s.Med_bulldog) {
        PrintSectionTitle(target, s, 6, 15, 185, size);
        PrintPicture(target, pictures.Pic_av_bolter, 15, 170, 65, 67.6);
        PrintSpacingConnector(target, s, texts, 15, 175);
    }
    target.EndDoc();
}

} // namespace tarnvik
