#include "frontend/painting/Icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QString>

#include <utility>

// The linker drops the resources of a static library that nobody asks for. In no namespace, as the macro declares a
// function of the global one.
static void Ask_for_resources() {
    Q_INIT_RESOURCE(tarnvik);
}

namespace tarnvik {

namespace {

class LateIcon : public QIconEngine {
public:
    explicit LateIcon(std::function<QIcon()> make) : make_(std::move(make)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        Made().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return Made().pixmap(size, 1.0, mode, state); // the size is one in pixels of the device
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
        return Made().availableSizes(mode, state);
    }
    [[nodiscard]] QIconEngine* clone() const override { return new LateIcon{*this}; }

private:
    const QIcon& Made() {
        if (icon_.isNull()) {
            icon_ = make_();
        }
        return icon_;
    }

    std::function<QIcon()> make_;
    QIcon icon_;
};

} // namespace

QIcon Late_icon(std::function<QIcon()> make) {
    return QIcon{new LateIcon{std::move(make)}};
}

QIcon Program_icon() {
    return Late_icon([] {
        Ask_for_resources();
        QIcon icon;
        for (const int size : {16, 32, 48, 64, 128, 256}) {
            // Without a word on its format every plugin for pictures is loaded and asked.
            icon.addPixmap(QPixmap{QStringLiteral(":/tarnvik/tarnvik-%1.png").arg(size), "png"});
        }
        return icon;
    });
}

} // namespace tarnvik
