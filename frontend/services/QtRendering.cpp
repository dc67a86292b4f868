#include "frontend/services/QtRendering.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <fstream>

#include "calc/RuntimeFault.h"
#include "frontend/painting/EquationPictures.h"
#include "frontend/painting/PictureStore.h"
#include "frontend/painting/QtPrintTarget.h"
#include "frontend/painting/Texts.h"
#include "platform/Path.h"
#include "session/SystemClock.h"
#include "spacing/sketch/Picture.h"
#include "spacing/sketch/Svg.h"

namespace tarnvik {

namespace {

constexpr std::string_view where = "Write_pictures";
constexpr double png_scale = 2.0; // pixels of the PNG for a pixel at 96 dpi

// The toolkit's messages, but for those that a session without a desktop always brings: the faces are in the program.
void Pass_on(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
    if (!text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")) &&
        !text.startsWith(QLatin1String("QFontDatabase: Cannot find font directory"))) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

void Write_svg(const std::string& file, const std::string& svg) {
    std::ofstream out{Path_of(file), std::ios::binary};
    if (!(out << svg).flush()) {
        Raise(fault_path_access, where);
    }
}

} // namespace

QtRendering::QtRendering(int& argc, char** argv) : argc_(argc), argv_(argv) {}

QtRendering::~QtRendering() = default;

void QtRendering::Start() {
    if (QCoreApplication::instance() == nullptr) {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen"); // no display is asked for
        }
        qInstallMessageHandler(Pass_on);
        application_ = std::make_unique<QApplication>(argc_, argv_);
    }
}

int QtRendering::Write_pictures(const std::filesystem::path& folder) {
    Start();
    int written = 0;
    for (const std::string& key : Picture_keys()) {
        const std::filesystem::path base = folder / key;
        std::error_code error;
        std::filesystem::create_directories(base.parent_path(), error);
        if (error) {
            Raise(fault_path_not_found, where);
        }
        const QSizeF size = Picture_size(key);
        const QRectF room{QPointF{}, size};

        QImage image{(size * png_scale).toSize(), QImage::Format_RGB32};
        image.fill(Qt::white);
        {
            QPainter painter{&image};
            painter.scale(png_scale, png_scale);
            Paint_picture(key, painter, room);
        }
        if (!image.save(Q(base.string() + ".png"))) {
            Raise(fault_path_access, where);
        }

        const auto drawing = Draw_picture(key, size.width(), size.height());
        Write_svg(base.string() + ".svg",
                  drawing ? Svg_of(*drawing, size.width(), size.height(), key) : Equation_svg(key));
        ++written;
    }
    return written;
}

void QtRendering::Write_report(const std::filesystem::path& file, const std::string& title,
                               const std::function<void(PrintTarget&, const Moment&)>& draw) {
    Start();
    const std::unique_ptr<PrintTarget> target = Pdf_target(file, title);
    draw(*target, SystemClock{}.Now());
}

} // namespace tarnvik
