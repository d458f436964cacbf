// Every element of every report that shows what somebody typed, filled with the longest text that
// the field of its screen takes: nothing is cut, nothing stands on anything else.
#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "foundation/Ini.h"
#include "platform/reporting/LayoutReader.h"
#include "platform/reporting/Output.h"
#include "records/Impressao.h"
#include "reports/Saida.h"
#include "reports/arPrestContas.h"
#include "reports/arPrestacao.h"
#include "reports/arRequisicao.h"
#include "reports/arRequisicao2.h"
#include "tests/reports/LayoutTable.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/office/Office.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {

using reporting::Document;
using reporting::Report;

namespace {

// What the screens take. A field without a limit of its own is taken at twice the longest name.
constexpr qsizetype kSecretariat = 50;
constexpr qsizetype kOrderer = 50;
constexpr qsizetype kOffice = 50;
constexpr qsizetype kUnlimited = 100;
constexpr qsizetype kPurpose = 20;
constexpr qsizetype kNoteNumber = 10;
constexpr qsizetype kSupplier = 45;
constexpr qsizetype kSetting = 255;
constexpr qsizetype kMemo = 1200;
constexpr qsizetype kPlaceOfUse = 35;
constexpr qsizetype kReason = 200;
constexpr qsizetype kProduct = 100;
constexpr qsizetype kAmountOfGoods = 4;
// Amounts have fourteen digits at the most.
const QString kMoney = QStringLiteral("999.999.999.999,99");
const QString kStoredMoney = QStringLiteral("9999999999999900");
const QString kElement = QStringLiteral("339032 - Outros Materiais de Distribuição Gratuita");

// How the texts are made: of words as names have them, or of the widest letter there is.
enum class Letters { Words, Widest };

QString words(qsizetype length) {
  QString text = QStringLiteral("MARIA APARECIDA DA CONCEIÇÃO GUIMARÃES DE ALBUQUERQUE E ")
                     .repeated(1 + length / 50)
                     .left(length);
  if (text.endsWith(QLatin1Char(' '))) {
    text.back() = QLatin1Char('S');
  }
  return text;
}

QString textOf(Letters letters, qsizetype length) {
  return letters == Letters::Widest ? QString(length, QLatin1Char('W')) : words(length);
}

QString quoted(const QString& text) {
  return QLatin1Char('\'') + text + QLatin1Char('\'');
}

// The elements of a layout that are filled when it is printed and shown on paper.
QStringList filledElements(const QString& report) {
  QStringList names;
  for (const reporting::SectionLayout& section : reporting::readLayout(Desenho(report)).sections) {
    for (const reporting::ElementLayout& element : section.elements) {
      const bool filled = element.kind == reporting::ElementKind::Field ||
                          element.kind == reporting::ElementKind::BarCode;
      if (filled && element.visible) {
        names << element.name;
      }
    }
  }
  return names;
}

// What is wrong on any page; `overprint` are elements that stand on others by design.
QString flaws(const Document& document, const QSet<QString>& overprint = {}) {
  QStringList found;
  for (const reporting::Page& page : document.pages()) {
    found << test::cutTexts(page) << test::offPaper(page) << test::collisions(page, overprint);
  }
  found.removeAll(QString());
  return found.join(QLatin1Char('\n'));
}

// Elements without a text on any page.
QStringList emptyElements(const Document& document, const QString& report) {
  QStringList empty = filledElements(report);
  for (const reporting::Page& page : document.pages()) {
    empty.removeIf([&page](const QString& name) { return !page.text(name).isEmpty(); });
  }
  return empty;
}

// A folder to look at: the pages as PDF, where the environment names one.
void keep(const Document& document, const QString& name) {
  const QString folder = qEnvironmentVariable("QUARTELA_PAGES");
  if (!folder.isEmpty()) {
    reporting::exportPdf(document, QDir(folder).filePath(name + QStringLiteral(".pdf")));
  }
}

}  // namespace

class LongestTextsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { office_ = std::make_unique<test::Office>(); }
  void cleanup() { office_.reset(); }

  // A report that is made later finds its way into this test.
  void everyReportIsHere() {
    const QStringList designs = QDir(QStringLiteral(":/quartela/reports"))
                                    .entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    QCOMPARE(designs, QStringList({"arPrestContas.json", "arPrestacao.json", "arRequisicao.json",
                                   "arRequisicao2.json", "srPrestacao.json"}));
  }

  void requisition_data() { addLetters(); }
  void requisition() {
    QFETCH(int, letters);
    addRequisition(static_cast<Letters>(letters));
    Grava_ini("Requisicao", "valor", "1", office_->config());
    Grava_ini("Financas", "nome", words(kSetting), office_->config());
    Grava_ini("Financas", "cargo", words(kSetting), office_->config());
    for (const QString& statement :
         {QStringLiteral("Select * from Sel_Print_req WHERE Requisicao.SEQ = 1999999914"),
          QStringLiteral("Select * from Sel_Print_reqavulso WHERE ReqAvulso.SEQ = 1999999914")}) {
      test::ScriptedDialogs dialogs;
      const Box asked{
          .text = QStringLiteral("Deseja mostrar o número do processo e a data de abertura?"),
          .title = QStringLiteral("Aviso"),
          .icon = BoxIcon::Exclamation,
          .buttons = {Button::Yes, Button::No},
          .defaultButton = Button::Yes};
      for (int page = 0; page < (static_cast<Letters>(letters) == Letters::Words ? 2 : 3); ++page) {
        dialogs.expectBox(asked, Button::Yes);
      }
      const auto document = built(arRequisicao2(statement));
      keep(*document, QStringLiteral("requisicao-%1").arg(letters));
      QCOMPARE(flaws(*document, {"Field20", "Field21", "Field22", "Field23", "Field24"}),
               QString());
      QCOMPARE(emptyElements(*document, QStringLiteral("arRequisicao2")), QStringList());
      const reporting::Page page = document->page(document->pageCount() - 1);
      QCOMPARE(page.text(u"Field29"), words(kSetting));
      QCOMPARE(page.text(u"Field33"), textOf(static_cast<Letters>(letters), kOrderer));
      QCOMPARE(page.text(u"Field34"), textOf(static_cast<Letters>(letters), kOrderer));
    }
  }

  // The person responsible has a name without a limit.
  void requisitionOfAnUnlimitedName() {
    addRequisition(Letters::Words);
    Grava_ini("Requisicao", "valor", "0", office_->config());
    office_->run(("UPDATE Tomador SET NOME1 = '" + words(kUnlimited) + "'").toUtf8().constData());
    const auto document = built(arRequisicao2(
        QStringLiteral("Select * from Sel_Print_req WHERE Requisicao.SEQ = 1999999914")));
    QCOMPARE(flaws(*document), QString());
    QCOMPARE(document->page(document->pageCount() - 1).text(u"Field33"), words(kUnlimited));
  }

  void slip_data() { addLetters(); }
  void slip() {
    QFETCH(int, letters);
    const auto made = static_cast<Letters>(letters);
    const auto document =
        built(arRequisicao({{"Field56", textOf(made, kOrderer)},
                            {"Field57", textOf(made, kSecretariat)},
                            {"Field58", textOf(made, kPurpose)},
                            {"Field59", "28/09/2014"},
                            {"Field60", "88888/88"},
                            {"Field61", "88888"},
                            {"Field62", kMoney},
                            {"Barcode1", "00091626600000235000000001200000000000000001"}}));
    keep(*document, QStringLiteral("guia-%1").arg(letters));
    QCOMPARE(flaws(*document), QString());
    // An earlier pair in each copy, under the names and addresses, that shows nothing.
    QCOMPARE(emptyElements(*document, QStringLiteral("arRequisicao")),
             QStringList({"Field54", "Field55", "Field32", "Field33", "Field43", "Field44"}));
  }

  void slipOfAnUnlimitedName() {
    const auto document = built(arRequisicao({{"Field56", words(kUnlimited)}}));
    QCOMPARE(flaws(*document), QString());
    QCOMPARE(document->page(0).text(u"Field45"), words(kUnlimited));
  }

  void accountability_data() { addLetters(); }
  void accountability() {
    QFETCH(int, letters);
    const auto made = static_cast<Letters>(letters);
    addRequisition(made);
    addNotes(made);
    const QString person = textOf(made, kOrderer);
    const QString secretariat = textOf(made, kSecretariat);
    const auto document = built(arPrestContas(
        {.relatorio = Relatorio::PrestContas,
         .comando = "Select * from PrestContas Where PROCESSO = 0050014 Order by DATA, SEQ;",
         .campos = {{"Field1", person},
                    {"Field2", secretariat},
                    {"Field3", "88888/88"},
                    {"Field4", "28/09/2014"},
                    {"Field5", "28/09/2014"},
                    {"Field37", kMoney},
                    {"Field40", QStringLiteral("454.454.454.454,54")},
                    {"Field42", textOf(made, kOffice)},
                    {"Field43", " 28/09/2014 20:58"},
                    {"Field44", secretariat},
                    {"Field45", "28 de setembro de 2014"},
                    {"Field46", person},
                    {"Field47", person}}}));
    keep(*document, QStringLiteral("prestacao-%1").arg(letters));
    QCOMPARE(flaws(*document), QString());
    QCOMPARE(emptyElements(*document, QStringLiteral("arPrestContas")), QStringList());
    QCOMPARE(document->page(0).text(u"Field46"), person);
    QCOMPARE(document->page(0).text(u"Field47"), person);
  }

  // Name and office of the person responsible have no limit.
  void accountabilityOfAnUnlimitedName() {
    addRequisition(Letters::Words);
    const QString person = words(kUnlimited);
    const auto document = built(arPrestContas(
        {.relatorio = Relatorio::PrestContas,
         .comando = "Select * from PrestContas Where PROCESSO = 0050014 Order by DATA, SEQ;",
         .campos = {{"Field37", kMoney},
                    {"Field40", "0,00"},
                    {"Field1", person},
                    {"Field42", person},
                    {"Field47", person}}}));
    keep(*document, QStringLiteral("prestacao-sem-limite"));
    QCOMPARE(flaws(*document), QString());
    QCOMPARE(document->page(0).text(u"Field47"), person);
  }

  void goods_data() { addLetters(); }
  void goods() {
    QFETCH(int, letters);
    const auto made = static_cast<Letters>(letters);
    QStringList columns{"ITEM", "REQUISITANTE", "LOCAL", "JUSTIFICATIVA"};
    QStringList values{"1", quoted(words(kUnlimited)), quoted(textOf(made, kPlaceOfUse)),
                       quoted(textOf(made, kReason))};
    for (int line = 1; line <= 10; ++line) {
      columns << QStringLiteral("PRODUTO%1").arg(line) << QStringLiteral("QUANT%1").arg(line);
      values << quoted(textOf(made, kProduct)) << quoted(textOf(made, kAmountOfGoods));
    }
    insert("Produtos", columns, values);
    const auto document = built(arPrestacao("SELECT * FROM Produtos WHERE ITEM = 1"));
    keep(*document, QStringLiteral("mercadorias-%1").arg(letters));
    QCOMPARE(flaws(*document), QString());
    QCOMPARE(emptyElements(*document, QStringLiteral("arPrestacao")), QStringList());
  }

  // Fields of several lines take as many as they take letters.
  void goodsInManyLines() {
    const auto lines = [](int count) {
      return QStringList(count, QStringLiteral("x")).join(QLatin1Char('\n'));
    };
    insert("Produtos", {"ITEM", "JUSTIFICATIVA", "PRODUTO3", "PRODUTO4"},
           {"1", quoted(lines(12)), quoted(lines(9)), quoted(QStringLiteral("último"))});
    const auto document = built(arPrestacao("SELECT * FROM Produtos WHERE ITEM = 1"));
    keep(*document, QStringLiteral("mercadorias-linhas"));
    QCOMPARE(flaws(*document), QString());
    QCOMPARE(document->page(0).items(u"Field18").at(0).lines.size(), 12);
  }

  void notes_data() { addLetters(); }
  void notes() {
    QFETCH(int, letters);
    addRequisition(static_cast<Letters>(letters));
    addNotes(static_cast<Letters>(letters));
    const auto document = built(srPrestacao(
        "SELECT PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, PrestContas.DESPESAS, "
        "Requisicao.VALOR FROM Requisicao INNER JOIN (Adiantamento INNER JOIN PrestContas ON "
        "Adiantamento.EMPENHO = PrestContas.PROCESSO) ON Requisicao.SEQ = Adiantamento.PROCESSO "
        "Where PrestContas.Processo = 0050014 ORDER BY PrestContas.DATA;"));
    keep(*document, QStringLiteral("notas-%1").arg(letters));
    QCOMPARE(flaws(*document), QString());
    QCOMPARE(emptyElements(*document, QStringLiteral("srPrestacao")), QStringList());
  }

 private:
  static void addLetters() {
    QTest::addColumn<int>("letters");
    QTest::newRow("words") << static_cast<int>(Letters::Words);
    QTest::newRow("widest letters") << static_cast<int>(Letters::Widest);
  }

  static std::shared_ptr<const Document> built(const std::shared_ptr<Report>& report) {
    report->build();
    return report->document();
  }

  void insert(const QString& table, const QStringList& columns, const QStringList& values) const {
    office_->run(QStringLiteral("INSERT INTO %1(%2) VALUES (%3)")
                     .arg(table, columns.join(QLatin1Char(',')), values.join(QLatin1Char(',')))
                     .toUtf8()
                     .constData());
  }

  // Process 1999999914 with the empenho 50014, all of its texts as long as can be.
  void addRequisition(Letters letters) const {
    insert("Orgao", {"IDORGAO", "ORGAO"}, {"1", quoted(textOf(letters, kSecretariat))});
    insert("Executor", {"ORDEM", "IDORGAO", "NOME", "RG", "CPF", "FUNCAO"},
           {"1", "1", quoted(textOf(letters, kOrderer)), quoted(words(kUnlimited)),
            "'888.888.888-88'", quoted(textOf(letters, kOffice))});
    insert("Tomador", {"ID", "NOME1", "CARGO", "RG1", "CPF1"},
           {"1", quoted(textOf(letters, kOrderer)), quoted(words(kUnlimited)),
            quoted(words(kUnlimited)), "'888.888.888-88'"});
    insert("Tipos", {"SEQUENCIA", "IDORGAO", "TIPO", "ELEMENTO", "LEI", "MATERIAIS", "PRAZO"},
           {"1", "1", quoted(textOf(letters, kPurpose)), quoted(kElement), quoted(words(kMemo)),
            quoted(words(kMemo)), "'60 dias'"});
    for (const char* const table : {"Requisicao", "ReqAvulso"}) {
      insert(table,
             {"SEQ", "DATA", "ORGAO", "TOMADOR", "VALOR", "FINALIDADE", "JUSTIFICATIVA", "FICHA"},
             {"1999999914", "'2014-09-28 00:00:00'", "1", "1", kStoredMoney, "1",
              quoted(words(kMemo)), "'8888'"});
    }
    insert("Adiantamento", {"EMPENHO", "PROCESSO"}, {"50014", "1999999914"});
  }

  // More than a page of them.
  void addNotes(Letters letters) const {
    for (int note = 0; note < 45; ++note) {
      insert("PrestContas", {"PROCESSO", "DATA", "ORDEM", "HISTORICO", "DESPESAS"},
             {"50014", "'2014-09-28 00:00:00'", quoted(textOf(letters, kNoteNumber)),
              quoted(textOf(letters, kSupplier)), kStoredMoney});
    }
  }

  std::unique_ptr<test::Office> office_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::LongestTextsTest)
#include "LongestTexts_test.moc"
