// What the screens of all reference tables have in common, on each of them.
#include "tests/masterdata/ReferenceTables.h"

#include "foundation/Banco.h"
#include "foundation/Rotinas.h"
#include "platform/controls/OpenForms.h"
#include "tests/masterdata/Tela.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

using test::ReferenceTable;
using test::Tela;
namespace boxes = test::boxes;

class ReferenceTablesTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    QFETCH(int, table);
    table_ = &test::referenceTables().at(table);
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    office_->run(table_->rows);
    open();
  }
  void cleanup() {
    tela_.reset();
    window_.reset();
    office_.reset();
  }

  void opensOnTheFullList_data() { all(); }
  void opensOnTheFullList() {
    QCOMPARE(window_->windowTitle(), table_->title);
    QVERIFY(!editing());
    QVERIFY(tela_->list().count() >= 3);
    QCOMPARE(tela_->row(rowOfThird()), table_->row);
    QCOMPARE(tela_->list().isChecked(rowOfThird()), table_->ticks);
    QCOMPARE(heads(), table_->heads);
    for (int n = 0; n < table_->twips.size(); ++n) {
      QCOMPARE(tela_->list().leastWidth(n),
               ColumnWidth::twips(table_->twips.at(n)).toPixels(window_->logicalDpiX()));
    }
    QCOMPARE(Tabela.state(), Recordset::Closed);
  }

  void theWords_data() { all(); }
  void theWords() {
    for (const auto& [button, word] : table_->words) {
      QCOMPARE(tela_->at<QPushButton>(button).text().remove(QLatin1Char('&')), word);
    }
    QCOMPARE(tela_->at<QAction>("mnuexcluir").text(), table_->menu);
    if (table_->searchLabel.isEmpty()) {
      QVERIFY(!window_->findChild<QWidget*>(QStringLiteral("txtpesquisa")));
      return;
    }
    QCOMPARE(tela_->at<QLabel>("Label_0").text(), table_->searchLabel);
    QCOMPARE(tela_->at<QLabel>("Label_4").text(),
             QStringLiteral("( * ) Campos de preenchimento obrigatórios"));
    const auto& tabs = tela_->at<TwoPageTab>("SSTab1");
    QCOMPARE(tabs.tabText(0), QStringLiteral("Consulta"));
    QCOMPARE(tabs.tabText(1), QStringLiteral("Cadastro"));
  }

  void aWholeCycle_data() { all(); }
  void aWholeCycle() {
    tela_->press(table_->include);
    QCOMPARE(shown(table_->loaded.first().first), QStringLiteral("Aut.Num."));
    QCOMPARE(tela_->focus(), QLatin1String(table_->focusToInclude));
    fill(table_->typed);
    save(boxes::askInclusion(), boxes::saved());
    QCOMPARE(office_->ask(table_->stored), table_->storedNew);
    tela_->click(table_->newKey);
    tela_->press("Command1_1");
    QCOMPARE(tela_->focus(), QLatin1String(table_->focusToAlter));
    QCOMPARE(firstOther(table_->reloaded), QString());
    fill(table_->changed);
    save(boxes::askAlteration(), boxes::altered());
    QCOMPARE(office_->ask(table_->stored), table_->storedChanged);
    tela_->click(table_->newKey);
    exclude(table_->newKey);
    QCOMPARE(tela_->rowOf(table_->newKey), -1);
    QCOMPARE(office_->ask(table_->stored), QString());
    QCOMPARE(Tabela.state(), Recordset::Closed);
  }

  void nothingClickedYet_data() { all(); }
  void nothingClickedYet() { mustPick(); }

  // Nothing that the list does not show is altered or deleted.
  void aSearchThatFindsNothingLeavesNothingToAlter_data() { searchable(); }
  void aSearchThatFindsNothingLeavesNothingToAlter() {
    clickThird();
    search(table_->nothing);
    QCOMPARE(tela_->list().count(), 0);
    mustPick();
    search(table_->found);
    mustPick();
  }

  void theSearch_data() { searchable(); }
  void theSearch() {
    search(table_->found);
    QStringList keys;
    for (int n = 0; n < tela_->list().count(); ++n) {
      keys << tela_->list().text(n);
    }
    keys.sort();
    QCOMPARE(keys, table_->keys);
    QCOMPARE(Tabela.state(), Recordset::Closed);
  }

  void aSearchKeepsTheClickedRowCurrent_data() { searchable(); }
  void aSearchKeepsTheClickedRowCurrent() {
    clickThird();
    search(table_->found);
    thirdIsCurrent();
  }

  void aSaveKeepsTheClickedRowCurrent_data() { all(); }
  void aSaveKeepsTheClickedRowCurrent() {
    clickThird();
    tela_->press("Command1_1");
    QCOMPARE(firstOther(table_->loaded), QString());
    save(boxes::askAlteration(), boxes::altered());
    QCOMPARE(tela_->row(rowOfThird()), table_->row);
    thirdIsCurrent();
  }

  void aDeletedRowIsForgotten_data() { all(); }
  void aDeletedRowIsForgotten() {
    clickThird();
    exclude(table_->row.first());
    QVERIFY(tela_->list().count() > 0);
    mustPick();
  }

  void aRowWithDependantsStays_data() {
    rows([](const ReferenceTable& table) { return table.depend != nullptr; });
  }
  void aRowWithDependantsStays() {
    office_->run(table_->depend);
    clickThird();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askDelete(table_->row.first()), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::DependantsExist, test::kAnything), Button::Ok,
                      [] { QVERIFY(!Conexao->inTransaction()); });
    QTest::keyClick(&tela_->list(), Qt::Key_Delete);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    thirdIsCurrent();
  }

  void whatIsRequired_data() {
    rows([](const ReferenceTable& table) { return table.required != nullptr; });
  }
  void whatIsRequired() {
    tela_->press(table_->include);
    fill(table_->typed);
    tela_->type(table_->required, QString());
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::warning(table_->requiredText));
    tela_->press(table_->save);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(editing());
    QCOMPARE(tela_->focus(), QLatin1String(table_->required));
  }

  void escapeAsksBeforeItGivesUpWhatWasTyped_data() { all(); }
  void escapeAsksBeforeItGivesUpWhatWasTyped() {
    tela_->press(table_->include);
    typeText();
    escape(Button::No);
    QVERIFY(editing());
    QCOMPARE(shown(table_->text.first), table_->text.second);
    escape(Button::Yes);
    QVERIFY(!editing());
    QVERIFY(window_->isVisible());
    tela_->key(Qt::Key_Escape);
    QVERIFY(!window_->isVisible());
  }

  void escapeAsksNothingWhereNothingWasTyped_data() { all(); }
  void escapeAsksNothingWhereNothingWasTyped() {
    clickThird();
    tela_->press("Command1_1");
    tela_->key(Qt::Key_Escape);
    QVERIFY(!editing());
    QVERIFY(window_->isVisible());
    tela_->key(Qt::Key_Escape);
    QVERIFY(!window_->isVisible());
  }

  // The frame, the ribbon's command for a window that is open, the end of the program.
  void closingAsksBeforeItGivesUpWhatWasTyped_data() { all(); }
  void closingAsksBeforeItGivesUpWhatWasTyped() {
    OpenForms::add(window_.get());
    clickThird();
    tela_->press("Command1_1");
    typeText();
    const QList<std::function<void()>> ways{
        [this] { window_->close(); },
        [this] { FormAberto(window_->objectName()); },
        [this] { OpenForms::unload(window_.get()); },
    };
    for (const auto& closes : ways) {
      asked(Button::No, closes);
      QVERIFY(window_->isVisible());
      QCOMPARE(shown(table_->text.first), table_->text.second);
    }
    asked(Button::Yes, ways.first());
    QVERIFY(!window_->isVisible());
  }

  void closingAsksNothingAfterACancel_data() { all(); }
  void closingAsksNothingAfterACancel() {
    tela_->press(table_->include);
    typeText();
    tela_->press(table_->cancel);
    QVERIFY(!editing());
    window_->close();
    QVERIFY(!window_->isVisible());
  }

  void theCommandToLeave_data() { all(); }
  void theCommandToLeave() {
    clickThird();
    tela_->press("Command1_1");
    typeText();
    if (table_->leavingAsks) {
      asked(Button::No, [this] { tela_->press(table_->leave); });
      QVERIFY(window_->isVisible());
      asked(Button::Yes, [this] { tela_->press(table_->leave); });
    } else {
      tela_->press(table_->leave);
    }
    QVERIFY(!window_->isVisible());
  }

  void keysAndNames_data() { all(); }
  void keysAndNames() {
    QCOMPARE(test::mnemonicClashes(*window_), QString());
    QCOMPARE(test::unnamedControls(*window_), QString());
    QCOMPARE(test::clippedTexts(*window_), QString());
    QCOMPARE(test::tabRound(*window_), table_->searchRound);
    tela_->press(table_->include);
    QCOMPARE(test::clippedTexts(*window_), QString());
    QCOMPARE(test::tabRound(*window_), table_->editRound);
  }

 private:
  static void rows(const std::function<bool(const ReferenceTable&)>& fits) {
    QTest::addColumn<int>("table");
    for (int n = 0; n < test::referenceTables().size(); ++n) {
      if (fits(test::referenceTables().at(n))) {
        QTest::newRow(test::referenceTables().at(n).name) << n;
      }
    }
  }
  static void all() {
    rows([](const ReferenceTable&) { return true; });
  }
  static void searchable() {
    rows([](const ReferenceTable& table) { return !table.searchLabel.isEmpty(); });
  }

  void open() {
    window_ = table_->open();
    tela_ = std::make_unique<Tela>(*window_);
  }
  bool editing() const { return tela_->at<QPushButton>(table_->save).isVisible() && saveEnabled(); }
  bool saveEnabled() const { return tela_->at<QPushButton>(table_->save).isEnabled(); }
  QStringList heads() const {
    QStringList heads;
    for (int n = 0; n < tela_->list().columnCount(); ++n) {
      heads << tela_->list().model()->headerData(n, Qt::Horizontal).toString();
    }
    return heads;
  }
  int rowOfThird() const { return tela_->rowOf(table_->row.first()); }
  void clickThird() const { tela_->click(table_->row.first()); }
  // It shows as current and selected, and what is altered is it.
  void thirdIsCurrent() const {
    QVERIFY(tela_->list().hasSelection());
    QCOMPARE(tela_->list().selectedRow(), rowOfThird());
    tela_->press("Command1_1");
    QCOMPARE(firstOther(table_->loaded), QString());
    tela_->press(table_->cancel);
  }
  void mustPick() const {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::mustPick());
    tela_->press("Command1_1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!editing());
    dialogs.expectBox(boxes::mustPick());
    tela_->at<QAction>("mnuexcluir").trigger();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }
  void search(const QString& text) const {
    tela_->type("txtpesquisa", text);
    tela_->press("cmdProcura");
  }
  void exclude(const QString& key) const {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askDelete(key), Button::Yes);
    dialogs.expectBox(boxes::deleted());
    tela_->excludeByMenu();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }
  void save(const Box& question, const Box& told) const {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(question, Button::Yes);
    dialogs.expectBox(told);
    tela_->press(table_->save);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!editing());
  }
  void asked(Button answer, const std::function<void()>& closes) const {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAbandon(), answer);
    closes();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }
  void escape(Button answer) const {
    asked(answer, [this] { tela_->key(Qt::Key_Escape); });
  }
  void typeText() const { tela_->type(table_->text.first, table_->text.second); }
  void fill(const QList<test::Field>& fields) const {
    for (const auto& [name, value] : fields) {
      auto& control = tela_->at<QWidget>(name);
      if (qobject_cast<QCheckBox*>(&control)) {
        tela_->tick(name);
      } else if (qobject_cast<ComboBox*>(&control)) {
        tela_->pick(name, value);
      } else {
        tela_->type(name, value);
      }
    }
  }
  QString shown(const char* name) const {
    if (const auto* box = qobject_cast<QCheckBox*>(&tela_->at<QWidget>(name))) {
      return box->isChecked() ? QStringLiteral("x") : QString();
    }
    return tela_->text(name);
  }
  // The first control that shows something else; empty for none.
  QString firstOther(const QList<test::Field>& fields) const {
    for (const auto& [name, value] : fields) {
      if (shown(name) != value) {
        return QLatin1String(name) + QStringLiteral(": ") + shown(name);
      }
    }
    return {};
  }

  const ReferenceTable* table_ = nullptr;
  std::unique_ptr<test::Office> office_;
  std::unique_ptr<QWidget> window_;
  std::unique_ptr<Tela> tela_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::ReferenceTablesTest)
#include "ReferenceTables_test.moc"
