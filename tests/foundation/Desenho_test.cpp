// How controls look, seen on their pictures.
#include "foundation/Desenho.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QStyleOptionViewItem>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <functional>

#include "foundation/Estilo.h"
#include "tests/support/office/OfficeMain.h"

using namespace quartela;

Q_DECLARE_METATYPE(std::function<QWidget*()>)

namespace {

double linear(double channel) {
  return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const double a = luminance(one) + 0.05;
  const double b = luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

// Points of two pictures of one size that differ plainly.
int differing(const QImage& one, const QImage& other) {
  int count = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      count += contrast(one.pixelColor(x, y), other.pixelColor(x, y)) > 1.5 ? 1 : 0;
    }
  }
  return count;
}

}  // namespace

class Desenho_test : public QObject {
  Q_OBJECT

 private slots:
  void theFocusIsSeen_data() {
    QTest::addColumn<std::function<QWidget*()>>("make");
    const auto row = [](const char* name, std::function<QWidget*()> make) {
      QTest::newRow(name) << std::move(make);
    };
    row("line", [] { return new QLineEdit; });
    row("memo", [] { return new QPlainTextEdit; });
    row("list", [] { return new QTreeWidget; });
    row("button", [] { return new QPushButton("OK"); });
    row("main button", [] {
      auto* const button = new QPushButton("OK");
      Estilo::destaca(*button);
      return button;
    });
    row("tick", [] { return new QCheckBox("Ativo"); });
    row("choice", [] { return new QRadioButton("Nome"); });
    row("combo box", [] { return new QComboBox; });
    row("combo box to type into", [] {
      auto* const combo = new QComboBox;
      combo->setEditable(true);
      return combo;
    });
    row("password", [] {
      auto* const line = new QLineEdit;
      Estilo::esconde_senha(*line);
      return line;
    });
  }
  // A ring of two points round the control, or round its words.
  void theFocusIsSeen() {
    QFETCH(std::function<QWidget*()>, make);
    QWidget window;
    QVBoxLayout layout(&window);
    QPushButton other("Outro");
    QWidget* const control = make();
    layout.addWidget(control);
    layout.addWidget(&other);
    window.resize(240, 120);
    window.show();
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    other.setFocus();
    const QImage without = control->grab().toImage();
    control->setFocus(Qt::MouseFocusReason);
    const QImage with = control->grab().toImage();
    const int found = differing(without, with);
    QVERIFY2(found > 2 * 40, qPrintable(QString::number(found)));
  }

  void aDisabledFieldLooksDisabled() {
    QLineEdit line;
    line.resize(120, 26);
    const QColor enabled = line.grab().toImage().pixelColor(60, 5);
    line.setEnabled(false);
    const QColor disabled = line.grab().toImage().pixelColor(60, 5);
    QCOMPARE(enabled, QColor(Qt::white));
    QVERIFY2(disabled.lightness() < 240, qPrintable(disabled.name()));
  }

  void theHandleIsToldFromItsTrack() {
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 100);
    bar.setPageStep(40);
    bar.resize(16, 300);
    const QImage picture = bar.grab().toImage();
    const QColor handle = picture.pixelColor(8, 60);
    const QColor track = picture.pixelColor(8, 260);
    QVERIFY2(contrast(handle, track) > 2, qPrintable(handle.name() + " on " + track.name()));
  }

  void theFrameOfAMemoIsWhole_data() {
    QTest::addColumn<double>("scale");
    QTest::newRow("100 %") << 1.0;
    QTest::newRow("125 %") << 1.25;
    QTest::newRow("150 %") << 1.5;
  }
  void theFrameOfAMemoIsWhole() {
    QFETCH(double, scale);
    QWidget window;
    QPlainTextEdit memo(&window);
    memo.setGeometry(11, 13, 121, 61);
    window.resize(151, 91);
    QImage picture(window.size() * scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    window.render(&picture);
    const auto darkest = [&](QPoint from, QPoint step) {
      double found = 1;
      for (int i = -3; i <= 3; ++i) {
        const QPoint at = (QPointF(from) * scale).toPoint() + step * i;
        found = std::max(found, contrast(picture.pixelColor(at), Qt::white));
      }
      return found;
    };
    QVERIFY(darkest({11, 45}, {1, 0}) > 1.4);
    QVERIFY(darkest({132, 45}, {1, 0}) > 1.4);
    QVERIFY(darkest({60, 13}, {0, 1}) > 1.4);
    QVERIFY(darkest({60, 74}, {0, 1}) > 1.4);
  }

  void headerTextsKeepADistance() {
    QTreeWidget list;
    list.setHeaderLabels({"SEQ", "VALOR"});
    list.headerItem()->setTextAlignment(1, Qt::AlignRight);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    QVERIFY(list.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, list.header()) >= 5);
    const QImage picture = list.header()->grab().toImage();
    const QColor ground = picture.pixelColor(1, picture.height() / 2);
    for (int x = 1; x < 5; ++x) {
      for (int y = 4; y < picture.height() - 4; ++y) {
        QVERIFY(contrast(picture.pixelColor(x, y), ground) < 2);
      }
    }
  }

  void theIconOfASelectedRowStaysClear() {
    QPixmap sheet(16, 16);
    sheet.fill(Qt::white);
    const QIcon icon(sheet);
    QCOMPARE(icon.pixmap(16, QIcon::Selected).toImage().pixelColor(8, 8), QColor(Qt::white));
  }
};

QUARTELA_OFFICE_TEST_MAIN(Desenho_test)
#include "Desenho_test.moc"
