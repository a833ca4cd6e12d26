#include <QAbstractItemView>
#include <QApplication>
#include <QDragMoveEvent>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <algorithm>
#include <cstdio>
#include <functional>

#include "bench/host.h"
#include "bench/sample.h"
#include "bench/sample_home.h"
#include "desktop/application.h"
#include "desktop/settings_window.h"
#include "desktop/volume_view.h"

// Times what a person waits for in an open window with 1,000 disk images, in milliseconds: a line
// for each kind with the slowest of its frames. Each frame is taken three times, and the fastest
// counts, so that what else the machine does then does not.
namespace {

constexpr int images = 1000;
constexpr int frames = 200;

// Until the change is painted.
double millisecondsOf(const std::function<void()>& change) {
  QElapsedTimer timer;
  timer.start();
  change();
  QCoreApplication::sendPostedEvents();  // paints what has changed
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

// `change` gets the number of a frame.
double slowest(int count, const std::function<void(int)>& change) {
  double worst = 0;
  for (int frame = 0; frame < count; ++frame) {
    double best = 1e9;
    for (int attempt = 0; attempt < 3; ++attempt) {
      change(frame - 1);
      QCoreApplication::processEvents();
      best = std::min(best, millisecondsOf([&] { change(frame); }));
    }
    worst = std::max(worst, best);
  }
  return worst;
}

double scroll(const desktop::VolumeView& list) {
  QScrollBar* const bar = list.verticalScrollBar();
  return slowest(frames, [bar](int frame) { bar->setValue(frame * bar->maximum() / frames); });
}

// Over all rows that are seen, and back.
double drag(const desktop::VolumeView& list) {
  QMimeData data;
  data.setData(list.model()->mimeTypes().constFirst(), "0\n");
  return slowest(frames, [&](int frame) {
    const QPoint place(20, (frame + 1) * list.viewport()->height() / (frames + 1));
    QDragMoveEvent move(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list.viewport(), &move);
    list.viewport()->update();
  });
}

// Each key of some words, the list of what is found included.
double search(QWidget& field) {
  const QString text = QStringLiteral("memory disk 68040 screen sound internet ram");
  const auto press = [&](int key, const QString& typed) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, Qt::NoModifier, typed);
      QCoreApplication::sendEvent(&field, &event);
    }
  };
  field.setFocus();
  double worst = 0;
  for (const QString& word : text.split(QLatin1Char(' '))) {
    for (qsizetype letter = 0; letter < word.size(); ++letter) {
      double best = 1e9;
      for (int attempt = 0; attempt < 3; ++attempt) {
        best = std::min(best, millisecondsOf([&] { press(0, word.mid(letter, 1)); }));
        QCoreApplication::processEvents();
        press(Qt::Key_Backspace, {});
        QCoreApplication::processEvents();
      }
      press(0, word.mid(letter, 1));
      worst = std::max(worst, best);
    }
    field.setProperty("text", QString());
  }
  return worst;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication qt(argc, argv);
  const bench::SampleHome home(bench::samplePreferences(images, 0));
  bench::Host host(home.path());
  editor::ViewController controller(host.host());
  controller.viewDidLoad();
  desktop::Application application;
  desktop::SettingsWindow window(controller, host.host(), application.edits);
  window.show();
  window.activateWindow();
  QElapsedTimer settled;  // pages, icons and findings come after the first paint
  for (settled.start(); settled.elapsed() < 1000;) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
  }
  const auto& list = *window.findChild<desktop::VolumeView*>();
  std::printf("scroll %.2f\n", scroll(list));
  std::printf("drag %.2f\n", drag(list));
  std::printf("search %.2f\n", search(*window.findChild<QWidget*>(QStringLiteral("findSetting"))));
}
