#include "frontend/painting/Faces.h"

#include <QFontDatabase>
#include <QStringList>

#include <array>
#include <initializer_list>

#include "frontend/painting/Texts.h"

// Keeps the resources of this static library in the program, see Icon.cpp.
static void Ask_for_resources() {
    Q_INIT_RESOURCE(fonts);
}

namespace tarnvik {

namespace {

// Makes the files of one family known to the toolkit.
QString Register(std::initializer_list<const char*> files) {
    Ask_for_resources();
    QString family;
    for (const char* file : files) {
        const int id =
            QFontDatabase::addApplicationFont(QStringLiteral(":/tarnvik/fonts/%1.ttf").arg(QLatin1String(file)));
        family = QFontDatabase::applicationFontFamilies(id).value(0);
    }
    return family;
}

struct Stand_in {
    const char* name;
    QString (*family)();
};
constexpr std::array<Stand_in, 4> stand_ins{{
    {"arial", Sans_family},
    {"tahoma", Sans_family},
    {"symbol", Sans_family},
    {"times new roman", Serif_family},
}};

} // namespace

QString Sans_family() {
    static const QString family = Register({"TarnvikSans-Regular", "TarnvikSans-Bold"});
    return family;
}

QString Serif_family() {
    static const QString family = Register({"TarnvikSerif-Regular", "TarnvikSerif-Bold", "TarnvikSerif-BoldItalic"});
    return family;
}

QString Family_for(std::string_view name) {
    QString asked = Q(name);
    for (const Stand_in& one : stand_ins) {
        if (asked.compare(QLatin1String(one.name), Qt::CaseInsensitive) == 0) {
            return one.family();
        }
    }
    return asked;
}

} // namespace tarnvik
