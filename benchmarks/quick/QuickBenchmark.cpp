// A wheel of three columns beside three of Qt Quick's own tumblers: one process, one run, the same
// size, font, rows and columns, drawn by the software renderer into an image.
//
// Times are processor time, and rounds alternate between the two, so what else runs on the machine
// counts little. Prints a table with the medians.
//
//     quick_benchmark [ROUNDS [WORD]]    only the lines with this word

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include <malloc.h>

#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QPointingDevice>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>
#include <QTest>

namespace {

constexpr QSize size(320, 216);

double processorTime() {
    std::timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

double heap() {
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1024;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// A window whose frames are drawn when they are asked for.
class Stage {
public:
    Stage() {
        window_->setGeometry(QRect(QPoint(), size));
        window_->contentItem()->setSize(size);
        window_->setColor(Qt::white);
        image_.fill(Qt::white);
        window_->setRenderTarget(QQuickRenderTarget::fromPaintDevice(&image_));
        window_->create();
    }

    QQuickWindow& window() { return *window_; }
    const QImage& image() const { return image_; }

    void draw() {
        control_.polishItems();
        control_.sync();
        control_.render();
    }

private:
    QQuickRenderControl control_;
    std::unique_ptr<QQuickWindow> window_ = std::make_unique<QQuickWindow>(&control_);
    QImage image_{size, QImage::Format_ARGB32_Premultiplied};
};

/// One of the two that are compared.
struct Peer {
    const char* name;
    std::unique_ptr<QQmlComponent> component;
};

class Shown {
public:
    Shown(Stage& stage, const Peer& peer, double rows) : stage_(stage) {
        item_.reset(qobject_cast<QQuickItem*>(peer.component->createWithInitialProperties({{QStringLiteral("rows"), rows}})));
        if (!item_) qFatal("%s", qPrintable(peer.component->errorString()));
        item_->setParentItem(stage.window().contentItem());
        stage_.draw();
    }

    void jump(double row) {
        QMetaObject::invokeMethod(item_.get(), "jump", Q_ARG(double, row));
        stage_.draw();
    }

private:
    Stage& stage_;
    std::unique_ptr<QQuickItem> item_;
};

/// Three fingers, one on each column.
///
/// Their events go to the window as a platform's do. QTest's touch sequences would sleep for a
/// millisecond before each, and what follows a sleep takes twice as long, in both.
class Fingers {
public:
    explicit Fingers(Stage& stage) : stage_(stage) { send(QEventPoint::Pressed); }
    ~Fingers() { send(QEventPoint::Released); }
    Fingers(const Fingers&) = delete;
    Fingers& operator=(const Fingers&) = delete;

    void move(int by) {
        y_ += by;
        send(QEventPoint::Updated);
    }

private:
    static QPointingDevice* device() {
        static QPointingDevice* const device = QTest::createTouchDevice();
        return device;
    }
    void send(QEventPoint::State state) {
        QList<QEventPoint> points;
        for (int finger = 0; finger < 3; ++finger) {
            const QPointF place(size.width() * (2 * finger + 1) / 6.0, y_);
            points.append(QEventPoint(finger, state, place, place));
        }
        qt_handleTouchEventv2(&stage_.window(), device(), points, Qt::NoModifier);
        stage_.draw();
    }

    Stage& stage_;
    int y_ = size.height() / 2;
};

double timeOf(const std::function<void()>& work, int times) {
    const double before = processorTime();
    for (int i = 0; i < times; ++i) work();
    return (processorTime() - before) / times;
}

using Measurement = std::function<double(const Peer& peer, double rows)>;

double creation(const Peer& peer, double rows) {
    Stage stage;
    stage.draw();
    const double before = processorTime();
    const Shown shown(stage, peer, rows);
    return processorTime() - before;
}

double frame(const Peer& peer, double rows) {
    Stage stage;
    const Shown shown(stage, peer, rows);
    Fingers fingers(stage);
    int frames = 0;
    // To and fro, by what is half a row.
    const auto move = [&] { fingers.move((frames++ / 8) % 2 == 0 ? -9 : 9); };
    timeOf(move, 32);
    return timeOf(move, 160);
}

double jump(const Peer& peer, double rows) {
    Stage stage;
    Shown shown(stage, peer, rows);
    double row = 7;
    const auto jump = [&] {
        row += 37; // Rows that were not seen before.
        if (row >= rows) row -= rows;
        shown.jump(row);
    };
    timeOf(jump, 8);
    return timeOf(jump, 100);
}

double memory(const Peer& peer, double rows) {
    constexpr int count = 8;
    Stage stage;
    std::vector<std::unique_ptr<Shown>> shown;
    shown.push_back(std::make_unique<Shown>(stage, peer, rows));
    const double before = heap();
    for (int i = 0; i < count; ++i) shown.push_back(std::make_unique<Shown>(stage, peer, rows));
    return (heap() - before) / count;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    for (const char* const weight : {"Regular", "Medium"}) {
        QFontDatabase::addApplicationFont(QStringLiteral("/usr/share/fonts/opentype/inter/Inter-%1.otf").arg(QLatin1String(weight)));
    }
    QGuiApplication::setFont(QFont(QStringLiteral("Inter")));
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 15;
    const std::string_view word = argc > 2 ? argv[2] : "";

    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(GX_QML_FOLDER));
    const auto peer = [&engine](const char* name, const char* document) {
        const QUrl url = QUrl::fromLocalFile(QStringLiteral(GX_BENCHMARK_FOLDER "/%1").arg(QLatin1String(document)));
        return Peer{name, std::make_unique<QQmlComponent>(&engine, url)};
    };
    const std::array<Peer, 2> peers = {peer("WheelPicker", "Wheel.qml"), peer("Tumbler", "Tumblers.qml")};

    struct Line {
        const char* what;
        Measurement measure;
        double rows;
        bool isForBoth;
    };
    const std::array<Line, 12> lines = {{{"creation with first frame, ms, 100 rows", creation, 100, true},
                                         {"creation with first frame, ms, 10^4 rows", creation, 1e4, true},
                                         {"creation with first frame, ms, 10^9 rows", creation, 1e9, false},
                                         {"frame of three turning columns, ms, 100 rows", frame, 100, true},
                                         {"frame of three turning columns, ms, 10^4 rows", frame, 1e4, true},
                                         {"frame of three turning columns, ms, 10^9 rows", frame, 1e9, false},
                                         {"jump and frame, ms, 100 rows", jump, 100, true},
                                         {"jump and frame, ms, 10^4 rows", jump, 1e4, true},
                                         {"jump and frame, ms, 10^9 rows", jump, 1e9, false},
                                         {"heap, KiB, 100 rows", memory, 100, true},
                                         {"heap, KiB, 10^4 rows", memory, 1e4, true},
                                         {"heap, KiB, 10^9 rows", memory, 1e9, false}}};
    std::printf("%-48s %12s %12s %8s\n", "", peers[0].name, peers[1].name, "ratio");
    for (const Line& line : lines) {
        if (std::string_view(line.what).find(word) == std::string_view::npos) continue;
        std::array<std::vector<double>, 2> values;
        for (int round = 0; round <= rounds; ++round) {
            for (std::size_t i = 0; i < (line.isForBoth ? 2 : 1); ++i) {
                const double value = line.measure(peers[i], line.rows);
                if (round > 0) values[i].push_back(value); // The first one fills caches.
            }
        }
        const double ours = median(values[0]);
        if (line.isForBoth) {
            const double theirs = median(values[1]);
            std::printf("%-48s %12.3f %12.3f %8.2f\n", line.what, ours, theirs, ours / theirs);
        } else {
            std::printf("%-48s %12.3f\n", line.what, ours);
        }
        std::fflush(stdout);
    }
    return 0;
}
