#include "check/Json.h"

#include <algorithm>
#include <cmath>

#include <nlohmann/json.hpp>

#include "calc/StateFields.h"
#include "detail/Detailed_calc.h"
#include "detail/Hjelpetext.h"

namespace tarnvik {

namespace {

using List = JsonList;

void Append_field(std::string& json, List& object, const ConnectionState& s, const StateField& field) {
    object.Name(field.name);
    std::visit([&](auto member) { Append_value(json, s.*member); }, field.member);
}

void Append_materials(std::string& json, const ConnectionState& s) {
    List rows{json, '[', ']'};
    for (int i = 0; i <= std::min<int>(s.Mat_count, mat_rows - 1); ++i) {
        const MatRecord& row = s.Mat[static_cast<std::size_t>(i)];
        rows.Next();
        List object{json, '{', '}'};
        object.Member("Id", row.Id);
        object.Member("Type", row.Type);
        object.Member("Standard", row.Standard);
        object.Member("fmk", row.fmk);
        object.Member("fc0k", row.fc0k);
        object.Member("fc90k", row.fc90k);
        object.Member("fvk", row.fvk);
        object.Member("E0_mean", row.E0_mean);
        object.Member("E0_05", row.E0_05);
        object.Member("G", row.G);
        object.Member("dens", row.dens);
        object.Member("s_fac", row.s_fac);
    }
}

void Append_profiles(std::string& json, const ConnectionState& s) {
    List rows{json, '[', ']'};
    for (int i = 0; i <= std::min<int>(s.Prof1_count, prof_rows - 1); ++i) {
        const ProfRecord& row = s.Prof[static_cast<std::size_t>(i)];
        rows.Next();
        List object{json, '{', '}'};
        object.Member("Id", row.Id);
        object.Member("Type", row.Type);
        object.Member("Standard", row.Standard);
        object.Member("b", row.b);
        object.Member("h", row.h);
    }
}

void Append_setup(std::string& json, const SetupRecord& setup) {
    List object{json, '{', '}'};
    object.Member("Language", setup.Language);
    object.Name("Setup_line");
    {
        List lines{json, '[', ']'};
        for (const std::string& line : setup.Setup_line) {
            lines.Next();
            Append_json(json, line);
        }
    }
    object.Member("gam_timb", setup.gam_timb);
    object.Member("gam_lam", setup.gam_lam);
    object.Member("gam_kerto", setup.gam_kerto);
    object.Member("gam_k-bjelke", setup.gam_k_bjelke);
}

void Append_state(std::string& json, const Options& options, const ConnectionState& s) {
    List object{json, '{', '}'};
    if (!options.fields) {
        for (const StateField& field : State_fields()) {
            Append_field(json, object, s, field);
        }
        return;
    }
    for (const std::string& name : *options.fields) {
        if (const StateField* field = Find_state_field(name)) {
            Append_field(json, object, s, *field);
            continue;
        }
        object.Name(name);
        if (name == "Mat") {
            Append_materials(json, s);
        } else if (name == "Prof") {
            Append_profiles(json, s);
        } else {
            Append_setup(json, s.Setup);
        }
    }
}

void Append_screen(std::string& json, const Screen& screen) {
    List controls{json, '{', '}'};
    for (std::size_t i = 0; i < control_count; ++i) {
        const ControlView& view = screen.controls[i];
        controls.Name(Control_name(static_cast<Control>(i)));
        List object{json, '{', '}'};
        const auto member = [&object](std::string_view name, const auto& value) {
            if (value) {
                object.Member(name, *value);
            }
        };
        member("caption", view.caption);
        member("visible", view.visible);
        member("enabled", view.enabled);
        member("bold", view.bold);
        member("fore", view.fore);
        member("back", view.back);
        member("index", view.index);
    }
}

void Append_table(std::string& json, const std::vector<PositionedText>& table) {
    List texts{json, '[', ']'};
    for (const PositionedText& text : table) {
        texts.Next();
        List object{json, '{', '}'};
        object.Member("x", text.x);
        object.Member("y", text.y);
        object.Member("text", text.text);
        object.Member("bold", text.bold);
        object.Member("fore", text.fore);
    }
}

void Append_tables(std::string& json, const Screen& screen) {
    List areas{json, '{', '}'};
    areas.Name("Pic_av_bolter_dif");
    Append_table(json, screen.Pic_av_bolter_dif);
    areas.Name("Pic_av_bulldog_dif");
    Append_table(json, screen.Pic_av_bulldog_dif);
}

void Append_pictures(std::string& json, const Screen& screen) {
    List areas{json, '{', '}'};
    areas.Member("Pic_forbindelse", screen.Pic_forbindelse);
    areas.Member("Pic_av_bolter", screen.Pic_av_bolter);
    areas.Member("Pic_av_bulldog", screen.Pic_av_bulldog);
}

void Append_font(List& object, std::string& json, const PrintFont& font) {
    object.Name("font");
    List members{json, '{', '}'};
    members.Member("name", font.name);
    members.Member("size", font.size);
    members.Member("bold", font.bold);
    members.Member("italic", font.italic);
}

void Append_call(std::string& json, const PrintCall& call) {
    using Op = PrintCall::Op;
    List object{json, '{', '}'};
    object.Member("page", call.page);
    object.Member("op", Op_name(call.op));
    switch (call.op) {
    case Op::FontName:
        object.Member("value", call.text);
        break;
    case Op::FontBold:
    case Op::FontItalic:
        object.Member("value", call.flag);
        break;
    case Op::Line:
        object.Member("x1", call.x);
        object.Member("y1", call.y);
        object.Member("x2", call.x2);
        object.Member("y2", call.y2);
        object.Member("draw_width", call.width);
        break;
    case Op::PaintPicture:
        object.Member("picture", call.text);
        object.Member("x", call.x);
        object.Member("y", call.y);
        object.Member("width", call.width);
        object.Member("height", call.height);
        break;
    case Op::TextWidth:
        object.Member("text", call.text);
        object.Member("value", call.value);
        Append_font(object, json, call.font);
        break;
    case Op::Print:
        object.Member("text", call.text);
        object.Member("x", call.x);
        object.Member("y", call.y);
        Append_font(object, json, call.font);
        break;
    case Op::NewPage:
    case Op::EndDoc:
        break;
    default:
        object.Member("value", call.value);
        break;
    }
}

void Append_report(std::string& json, const std::vector<PrintCall>& calls) {
    List list{json, '[', ']'};
    for (const PrintCall& call : calls) {
        list.Next();
        Append_call(json, call);
    }
}

void Append_painting(std::string& json, const Painting& painting) {
    List pieces{json, '[', ']'};
    for (const PaintedText& text : painting.texts) {
        pieces.Next();
        List object{json, '{', '}'};
        object.Member("x", text.x);
        object.Member("y", text.y);
        object.Member("text", text.text);
        object.Member("font", Font_name(text.look.font));
        object.Member("bold", text.look.bold);
        object.Member("small", text.look.small);
        object.Member("right", text.look.right);
        object.Member("fore", text.fore);
    }
    for (const PaintedPicture& picture : painting.pictures) {
        pieces.Next();
        List object{json, '{', '}'};
        object.Member("x", picture.x);
        object.Member("y", picture.y);
        object.Member("w", picture.w);
        object.Member("h", picture.h);
        object.Member("picture", picture.key);
    }
}

void Append_explanations(std::string& json, const ConnectionState& s) {
    List windows{json, '{', '}'};
    for (const ExplanationWindow& window : explanation_windows) {
        windows.Name(window.name);
        const Painting painting = Paint_explanation(window, s);
        List object{json, '{', '}'};
        object.Member("caption", painting.caption);
        object.Name("painting");
        Append_painting(json, painting);
    }
}

} // namespace

void Append_value(std::string& json, float value) {
    if (value == 0.0F && std::signbit(value)) {
        json += "-0.0"; // most readers take "-0" for an integer and lose the sign
    } else if (std::isfinite(value)) {
        json += Shortest(value).View();
    } else {
        json += "null"; // JSON has no infinity and no NaN; they come from a damaged project only
    }
}

void Append_value(std::string& json, int value) {
    json += std::to_string(value);
}

void Append_value(std::string& json, std::int16_t value) {
    Append_value(json, static_cast<int>(value));
}

void Append_value(std::string& json, std::uint32_t value) {
    json += std::to_string(value);
}

void Append_value(std::string& json, bool value) {
    json += value ? "true" : "false";
}

void Append_value(std::string& json, std::string_view value) {
    Append_json(json, value);
}

void Append_value(std::string& json, const std::string& value) {
    Append_json(json, value);
}

void Append_value(std::string& json, const std::vector<std::string>& values) {
    JsonList list{json, '[', ']'};
    for (const std::string& value : values) {
        list.Next();
        Append_json(json, value);
    }
}

void Append_json(std::string& json, std::string_view text) {
    const bool plain = std::all_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte >= 0x20 && byte < 0x7F && c != '"' && c != '\\';
    });
    if (plain) {
        json += '"';
        json += text;
        json += '"';
    } else {
        json += nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    }
}

void Append_result(std::string& json, const Options& options, const std::string& project, const ConnectionState& s,
                   const Screen& screen, const PassResult& result, const MessageLog& box, const RecordReport& record,
                   const Remarks& remarks) {
    List object{json, '{', '}'};
    if (!project.empty()) {
        object.Member("project", project);
    }
    object.Member("end", Pass_end_name(result.end));
    if (result.fault) {
        object.Name("fault");
        List fault{json, '{', '}'};
        fault.Member("number", result.fault->number);
        fault.Member("description", result.fault->description);
        fault.Member("where", result.fault->where);
    }
    object.Name("messages");
    {
        List messages{json, '[', ']'};
        for (const auto& message : box.messages) {
            messages.Next();
            List shown{json, '{', '}'};
            shown.Member("text", message.text);
            shown.Member("style", message.style);
        }
    }
    if (!remarks.warnings.empty()) {
        object.Member("warnings", remarks.warnings);
    }
    object.Name("state");
    Append_state(json, options, s);
    if (remarks.checks) {
        object.Name("checks");
        Append_checks(json, *remarks.checks, Is_english(s));
    }
    for (const std::string& group : options.with) {
        object.Name(group);
        if (group == "screen") {
            Append_screen(json, screen);
        } else if (group == "tables") {
            Append_tables(json, screen);
        } else if (group == "pictures") {
            Append_pictures(json, screen);
        } else if (group == "detail") {
            // The window cannot be opened before a pass has come to its end.
            Append_painting(json, result.end == PassEnd::normal ? Paint_detailed(s) : Painting{});
        } else if (group == "explanations") {
            Append_explanations(json, s);
        } else if (group == "report") {
            Append_report(json, record ? record() : std::vector<PrintCall>{});
        }
    }
}

} // namespace tarnvik
