#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTextEdit>
#include <QVBoxLayout>

#include "foundation/Rotinas.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/DatePicker.h"
#include "platform/controls/ListView.h"
#include "platform/controls/MaskedBox.h"
#include "platform/controls/MoneyEdit.h"
#include "platform/controls/OpenForms.h"
#include "platform/controls/TwoPageTab.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

// A control added to the layout of `parent`.
template <typename Control>
Control* add(QWidget* parent, const char* tag = nullptr) {
  auto* control = new Control;
  parent->layout()->addWidget(control);
  if (tag) {
    control->setProperty("Tag", QString::fromLatin1(tag));
  }
  return control;
}

}  // namespace

class RotinasTelaTest : public QObject {
  Q_OBJECT
 private slots:
  void init();
  void cleanup();
  void requiredKinds_data();
  void requiredKinds();
  void lastEmptyFieldHasTheFocus();
  void otherTagsAreNotRequired_data();
  void otherTagsAreNotRequired();
  void shownTemplateIsNotEmpty();
  void fieldsInFramesAndPagesCount();
  void hiddenAndDisabledFieldsCountWithoutFocus();
  void otherControlsAreNotLookedAt();
  void windowsOfTheScreenAreLeftAlone();
  void clearsEveryKind();
  void clearsOptionsOfGroups();
  void clearLeavesOthersAlone();
  void sortsAndTurnsRound();
  void switchesPages();
  void closesTheWindowOfAName();
  void closesOneWindowOnly();

 private:
  std::unique_ptr<QWidget> screen_;
};

void RotinasTelaTest::init() {
  screen_ = std::make_unique<QWidget>();
  new QVBoxLayout(screen_.get());
  screen_->show();
  screen_->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(screen_.get()));
}

void RotinasTelaTest::cleanup() {
  screen_.reset();
}

void RotinasTelaTest::requiredKinds_data() {
  QTest::addColumn<QString>("kind");
  for (const char* kind :
       {"line", "memo", "rich", "combo", "editable", "plain combo", "mask", "money"}) {
    QTest::newRow(kind) << kind;
  }
}

void RotinasTelaTest::requiredKinds() {
  QFETCH(QString, kind);
  QWidget* field = nullptr;
  std::function<void()> fill;
  if (kind == "line") {
    auto* line = add<QLineEdit>(screen_.get());
    fill = [line] { line->setText("x"); };
    field = line;
  } else if (kind == "memo") {
    auto* memo = add<QPlainTextEdit>(screen_.get());
    fill = [memo] { memo->setPlainText("x"); };
    field = memo;
  } else if (kind == "rich") {
    auto* memo = add<QTextEdit>(screen_.get());
    fill = [memo] { memo->setPlainText("x"); };
    field = memo;
  } else if (kind == "combo" || kind == "editable") {
    auto* combo = add<ComboBox>(screen_.get());
    combo->setEditable(kind == "editable");
    combo->addItem("x");
    fill = [combo] { combo->setListIndex(0); };
    field = combo;
  } else if (kind == "plain combo") {
    auto* combo = add<QComboBox>(screen_.get());
    fill = [combo] { combo->addItem("x"); };
    field = combo;
  } else if (kind == "mask") {
    auto* mask = add<MaskedBox>(screen_.get());
    fill = [mask] { mask->setText("x"); };
    field = mask;
  } else {
    auto* money = add<MoneyEdit>(screen_.get());
    fill = [money] { money->setText("1,00"); };
    field = money;
  }
  QVERIFY(!Campos_vazios(*screen_));
  field->setProperty("Tag", "1");
  QVERIFY(Campos_vazios(*screen_));
  QTRY_VERIFY(field->hasFocus());
  fill();
  QVERIFY(!Campos_vazios(*screen_));
}

void RotinasTelaTest::lastEmptyFieldHasTheFocus() {
  auto* first = add<QLineEdit>(screen_.get(), "1");
  auto* second = add<ComboBox>(screen_.get(), "1");
  auto* third = add<QLineEdit>(screen_.get(), "1");
  auto* fourth = add<QLineEdit>(screen_.get());
  fourth->setFocus();
  third->setText("x");
  QVERIFY(Campos_vazios(*screen_));
  QTRY_VERIFY(second->hasFocus());
  third->clear();
  QVERIFY(Campos_vazios(*screen_));
  QTRY_VERIFY(third->hasFocus());
  QVERIFY(!first->hasFocus());
}

void RotinasTelaTest::otherTagsAreNotRequired_data() {
  QTest::addColumn<QVariant>("tag");
  QTest::addColumn<bool>("required");
  QTest::newRow("text") << QVariant(QString("1")) << true;
  QTest::newRow("number") << QVariant(1) << true;
  QTest::newRow("none") << QVariant() << false;
  QTest::newRow("empty") << QVariant(QString()) << false;
  QTest::newRow("0") << QVariant(QString("0")) << false;
  QTest::newRow("11") << QVariant(QString("11")) << false;
}

void RotinasTelaTest::otherTagsAreNotRequired() {
  QFETCH(QVariant, tag);
  QFETCH(bool, required);
  add<QLineEdit>(screen_.get())->setProperty("Tag", tag);
  QCOMPARE(Campos_vazios(*screen_), required);
}

void RotinasTelaTest::shownTemplateIsNotEmpty() {
  auto* cpf = add<MaskedBox>(screen_.get(), "1");
  cpf->setMask("###.###.###-##");
  QVERIFY(!Campos_vazios(*screen_));
  cpf->setPromptIncluded(false);
  QVERIFY(Campos_vazios(*screen_));
}

void RotinasTelaTest::fieldsInFramesAndPagesCount() {
  auto* tab = add<TwoPageTab>(screen_.get());
  auto* page = new QWidget;
  new QVBoxLayout(page);
  tab->addTab(page, "Cadastro");
  auto* frame = add<QGroupBox>(page);
  new QVBoxLayout(frame);
  auto* field = add<QLineEdit>(frame, "1");
  QVERIFY(Campos_vazios(*screen_));
  field->setText("x");
  QVERIFY(!Campos_vazios(*screen_));
  Limpa_tela(*screen_);
  QCOMPARE(field->text(), "");
}

void RotinasTelaTest::hiddenAndDisabledFieldsCountWithoutFocus() {
  auto* first = add<QLineEdit>(screen_.get(), "1");
  auto* second = add<QLineEdit>(screen_.get(), "1");
  second->setEnabled(false);
  QVERIFY(Campos_vazios(*screen_));
  QTRY_VERIFY(first->hasFocus());
  first->setText("x");
  QVERIFY(Campos_vazios(*screen_));
}

void RotinasTelaTest::otherControlsAreNotLookedAt() {
  add<DatePicker>(screen_.get(), "1");
  add<QCheckBox>(screen_.get(), "1");
  add<ListView>(screen_.get(), "1");
  auto* number = add<QSpinBox>(screen_.get(), "1");
  number->clear();
  QVERIFY(!Campos_vazios(*screen_));
}

void RotinasTelaTest::windowsOfTheScreenAreLeftAlone() {
  auto* dialog = new QDialog(screen_.get());
  new QVBoxLayout(dialog);
  auto* field = add<QLineEdit>(dialog, "1");
  QVERIFY(!Campos_vazios(*screen_));
  field->setText("x");
  Limpa_tela(*screen_);
  QCOMPARE(field->text(), "x");
}

void RotinasTelaTest::clearsEveryKind() {
  auto* line = add<QLineEdit>(screen_.get());
  line->setText("x");
  auto* memo = add<QPlainTextEdit>(screen_.get());
  memo->setPlainText("x");
  auto* fixed = add<ComboBox>(screen_.get());
  fixed->addItem("x");
  fixed->setListIndex(0);
  auto* editable = add<ComboBox>(screen_.get());
  editable->setEditable(true);
  editable->addItem("x");
  editable->setText("y");
  auto* cpf = add<MaskedBox>(screen_.get());
  cpf->setMask("###.###.###-##");
  cpf->setText("12345678901");
  auto* money = add<MoneyEdit>(screen_.get());
  money->setText("1.234,50");
  auto* tick = add<QCheckBox>(screen_.get());
  tick->setChecked(true);
  auto* date = add<DatePicker>(screen_.get());
  date->setValue(DateTime::of(2001, 1, 2));
  auto* empty = add<DatePicker>(screen_.get());
  auto* list = add<ListView>(screen_.get());
  list->addItem("x");

  Limpa_tela(*screen_);

  QCOMPARE(line->text(), "");
  QCOMPARE(memo->toPlainText(), "");
  QCOMPARE(fixed->listIndex(), -1);
  QCOMPARE(fixed->text(), "");
  QCOMPARE(fixed->count(), 1);
  QCOMPARE(editable->text(), "");
  QCOMPARE(editable->count(), 1);
  QCOMPARE(cpf->text(), "___.___.___-__");
  QCOMPARE(money->text(), "");
  QVERIFY(!tick->isChecked());
  QCOMPARE(date->text(), "21/11/2014");
  QCOMPARE(empty->text(), "21/11/2014");
  QCOMPARE(list->count(), 0);
}

void RotinasTelaTest::clearsOptionsOfGroups() {
  auto* first = add<QRadioButton>(screen_.get());
  auto* second = add<QRadioButton>(screen_.get());
  auto* frame = add<QGroupBox>(screen_.get());
  new QVBoxLayout(frame);
  auto* third = add<QRadioButton>(frame);
  auto* fourth = add<QRadioButton>(frame);
  QButtonGroup group;
  group.addButton(third);
  group.addButton(fourth);
  second->setChecked(true);
  third->setChecked(true);
  Limpa_tela(*screen_);
  for (const QRadioButton* option : {first, second, third, fourth}) {
    QVERIFY(!option->isChecked());
  }
  first->setChecked(true);
  second->setChecked(true);
  QVERIFY(!first->isChecked());
  third->setChecked(true);
  fourth->setChecked(true);
  QVERIFY(!third->isChecked());
}

void RotinasTelaTest::clearLeavesOthersAlone() {
  auto* number = add<QSpinBox>(screen_.get());
  number->setValue(7);
  auto* frame = add<QGroupBox>(screen_.get());
  frame->setTitle("Dados");
  Limpa_tela(*screen_);
  QCOMPARE(number->value(), 7);
  QCOMPARE(number->text(), "7");
  QCOMPARE(frame->title(), "Dados");
}

void RotinasTelaTest::sortsAndTurnsRound() {
  auto* list = add<ListView>(screen_.get());
  list->addRow({"2", "b"});
  list->addRow({"1", "c"});
  list->addRow({"3", "a"});
  const auto texts = [list](int n) {
    list->flush();
    QString all;
    for (int row = 0; row < list->count(); ++row) {
      all += list->subItem(row, n);
    }
    return all;
  };
  QVERIFY(!list->isSorted());
  Ordena_lista(*list, 2);
  QVERIFY(list->isSorted());
  QCOMPARE(list->sortKey(), 1);
  QCOMPARE(texts(1), "cba");
  Ordena_lista(*list, 2);
  QCOMPARE(texts(1), "abc");
  Ordena_lista(*list, 1);
  QCOMPARE(list->sortKey(), 0);
  QCOMPARE(texts(0), "321");
}

void RotinasTelaTest::switchesPages() {
  auto* tab = add<TwoPageTab>(screen_.get());
  tab->addTab(new QWidget, "Consulta");
  tab->addTab(new QWidget, "Cadastro");
  tab->setTabEnabled(1, false);
  Troca_aba(*tab);
  QCOMPARE(tab->current(), 1);
  QVERIFY(tab->tabEnabled(1));
  QVERIFY(!tab->tabEnabled(0));
  Troca_aba(*tab);
  QCOMPARE(tab->current(), 0);
  QVERIFY(tab->tabEnabled(0));
  QVERIFY(!tab->tabEnabled(1));
}

void RotinasTelaTest::closesTheWindowOfAName() {
  QWidget form;
  form.setObjectName("frmCadastro");
  form.show();
  OpenForms::add(&form);
  QVERIFY(!FormAberto("frmOrgao"));
  QVERIFY(form.isVisible());
  QVERIFY(FormAberto("frmCadastro"));
  QVERIFY(!form.isVisible());
  QVERIFY(!FormAberto("frmCadastro"));
}

void RotinasTelaTest::closesOneWindowOnly() {
  QWidget first;
  QWidget second;
  for (QWidget* form : {&first, &second}) {
    form->setObjectName("frmAviso");
    form->show();
    OpenForms::add(form);
  }
  QVERIFY(FormAberto("frmAviso"));
  QVERIFY(!first.isVisible());
  QVERIFY(second.isVisible());
}

QUARTELA_TEST_MAIN(RotinasTelaTest)
#include "RotinasTela_test.moc"
