#include "platform/controls/OpenForms.h"

#include <QCloseEvent>
#include <QDialog>
#include <QLabel>
#include <QTabWidget>

#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

class Stubborn : public QWidget {
 public:
  bool refuses = true;

 protected:
  void closeEvent(QCloseEvent* event) override { event->setAccepted(!refuses); }
};

template <typename Form = QWidget>
std::unique_ptr<Form> opened(const char* name) {
  auto form = std::make_unique<Form>();
  form->setObjectName(QLatin1String(name));
  form->show();
  OpenForms::add(form.get());
  return form;
}

}  // namespace

class OpenFormsTest : public QObject {
  Q_OBJECT
 private slots:
  void keepsTheOrderOfOpening();
  void findsTheFirstOfAName();
  void closedFormsLeave();
  void destroyedFormsLeave();
  void dialogsThatEndLeave();
  void refusedCloseStays();
  void hiddenFormsStay();
  void shownAgainIsOpenAgain();
  void aChildOfTheMainWindowKeepsItsLooks();
};

void OpenFormsTest::keepsTheOrderOfOpening() {
  const auto a = opened("frmA");
  const auto b = opened("frmB");
  OpenForms::add(a.get());
  QCOMPARE(OpenForms::all(), (QList<QWidget*>{a.get(), b.get()}));
}

void OpenFormsTest::findsTheFirstOfAName() {
  const auto a = opened("frmA");
  const auto b = opened("frmAviso");
  const auto c = opened("frmAviso");
  QCOMPARE(OpenForms::find("frmAviso"), b.get());
  QCOMPARE(OpenForms::find("frmaviso"), nullptr);
  QCOMPARE(OpenForms::find(""), nullptr);
}

void OpenFormsTest::closedFormsLeave() {
  const auto a = opened("frmA");
  const auto b = opened("frmB");
  QVERIFY(OpenForms::unload(a.get()));
  QCOMPARE(OpenForms::all(), QList<QWidget*>{b.get()});
  b->close();
  QVERIFY(OpenForms::all().isEmpty());
}

void OpenFormsTest::destroyedFormsLeave() {
  auto a = opened("frmA");
  a.reset();
  QVERIFY(OpenForms::all().isEmpty());
}

void OpenFormsTest::dialogsThatEndLeave() {
  const auto dialog = opened<QDialog>("frmD");
  dialog->reject();
  QVERIFY(OpenForms::all().isEmpty());
}

void OpenFormsTest::refusedCloseStays() {
  const auto form = opened<Stubborn>("frmS");
  QVERIFY(!OpenForms::unload(form.get()));
  QCOMPARE(OpenForms::find("frmS"), form.get());
  form->refuses = false;
  QVERIFY(OpenForms::unload(form.get()));
  QCOMPARE(OpenForms::find("frmS"), nullptr);
}

void OpenFormsTest::hiddenFormsStay() {
  const auto form = opened("frmA");
  form->hide();
  QCOMPARE(OpenForms::find("frmA"), form.get());
}

void OpenFormsTest::shownAgainIsOpenAgain() {
  const auto a = opened("frmA");
  const auto b = opened("frmB");
  a->close();
  a->show();
  OpenForms::add(a.get());
  QVERIFY(OpenForms::all().contains(a.get()));
  a->close();
  OpenForms::add(a.get());
  QCOMPARE(OpenForms::all(), (QList<QWidget*>{b.get(), a.get()}));
}

// On each page of the form, the one that is not shown at first too.
void OpenFormsTest::aChildOfTheMainWindowKeepsItsLooks() {
  qApp->setStyleSheet(QStringLiteral("QLabel#title { color: #ff0000; }"));
  QWidget main;
  main.show();
  OpenForms::setMainWindow(&main);
  auto* const form = new QWidget;
  auto* const pages = new QTabWidget(form);
  QList<QLabel*> labels;
  for (const char* const name : {"first", "second"}) {
    auto* const label = new QLabel(QLatin1String(name));
    pages->addTab(label, QLatin1String(name));
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, Qt::blue);
    label->setPalette(colours);
    labels << label;
  }
  OpenForms::add(form);
  OpenForms::showInFront(*form);
  QCOMPARE(form->parentWidget(), &main);
  for (int page = 0; page < labels.size(); ++page) {
    pages->setCurrentIndex(page);
    QVERIFY(labels.at(page)->isVisible());
    QVERIFY(labels.at(page)->font().bold());
    QCOMPARE(labels.at(page)->palette().color(QPalette::WindowText), QColor(Qt::blue));
  }
  qApp->setStyleSheet(QString());
}

QUARTELA_TEST_MAIN(OpenFormsTest)
#include "OpenForms_test.moc"
