// The printed accountability: its design, its pages, its balances, and how it leaves the program.
#include "reports/arPrestContas.h"

#include <algorithm>
#include <numeric>

#include "foundation/Erros.h"
#include "platform/controls/OpenForms.h"
#include "platform/reporting/Output.h"
#include "platform/reporting/ReportPreview.h"
#include "platform/values/Format.h"
#include "records/Impressao.h"
#include "reports/Saida.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/reports/LayoutTable.h"
#include "tests/support/PdfTools.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

using reporting::Document;
using reporting::Page;
using reporting::ReportPreview;
using test::column;
using test::ElementRow;
using test::ScriptedDialogs;
using test::text;
using test::textsOf;
namespace boxes = test::boxes;

namespace {

const QList<ElementRow> kTable{
    {"Cabecalho", "Label1", {2409, 47, 5953, 331}, text("PREFEITURA MUNICIPAL DE BRUMALESTE")},
    {"Cabecalho", "Label2", {3024, 331, 4441, 236}, text("ESTADO DE SÃO PAULO")},
    {"Cabecalho", "Label3", {0, 614, 10394, 284}, text("PRESTAÇÃO DE CONTAS DE ADIANTAMENTO")},
    {"Cabecalho", "Label4", {0, 921, 1984, 284}, text("Responsável....:")},
    {"Cabecalho", "Label5", {0, 1488, 1984, 284}, text("Orgão .........:")},
    {"Cabecalho", "Label6", {0, 1772, 1488, 283}, text("Empenho n°.:")},
    {"Cabecalho", "Label7", {3189, 1772, 2126, 283}, text("Data de Abertura:")},
    {"Cabecalho", "Label10", {6874, 1772, 1843, 283}, text("Data de Ínicio:")},
    {"Cabecalho", "Field1", {1984, 921, 7583, 284}},
    {"Cabecalho", "Field2", {1984, 1488, 7583, 284}},
    {"Cabecalho", "Field3", {1488, 1772, 1630, 283}, column("EMPENHO")},
    {"Cabecalho", "Field4", {5315, 1772, 1559, 283}},
    {"Cabecalho", "Field5", {8717, 1772, 1488, 283}},
    {"Cabecalho", "Field37", {8835, 945, 1275, 189}, {}, "#,##0.00"},
    {"Cabecalho",
     "Label40",
     {2906, 2126, 4889, 213},
     text("Identificação do Fornencedor (Razão Social)")},
    {"Cabecalho", "Label41", {354, 2126, 992, 213}, text("Data")},
    {"Cabecalho", "Label42", {1346, 2126, 1489, 213}, text("Nº. Nota")},
    {"Cabecalho", "Label43", {7937, 2126, 1134, 213}, text("Despesa R$")},
    {"Cabecalho", "Label44", {9071, 2126, 1275, 213}, text("Saldo R$")},
    {"Cabecalho", "Label46", {2906, 2339, 4960, 212}, text("ADIANTAMENTO")},
    {"Cabecalho", "Field39", {9142, 2339, 1204, 212}, {}, "#,##0.00"},
    {"Cabecalho", "Label49", {0, 1205, 1984, 283}, text("Cargo ou Função:")},
    {"Cabecalho", "Field42", {1984, 1205, 7937, 283}, column("EMPENHO")},
    {"Detail", "Field31", {331, 0, 1086, 189}, column("DATA"), "dd/MM/yyyy"},
    {"Detail", "Field32", {1417, 0, 1465, 189}, column("ORDEM")},
    {"Detail", "Field33", {2882, 0, 4961, 189}, column("HISTORICO")},
    {"Detail", "Field34", {7937, 0, 1087, 189}, column("DESPESAS"), "#,##0.00"},
    {"Detail", "Field35", {5811, 0, 1323, 189}, column("DESPESAS"), "#,##0.00"},
    {"Detail", "Field36", {9118, 0, 1228, 189}, column("DESPESAS"), "#,##0.00"},
    {"Detail", "Field38", {0, 0, 331, 189}, column("HISTORICO")},
    {"PageFooter", "Label47", {0, 94, 3213, 284}, text("Importância não Aplicada.:")},
    {"PageFooter", "Field40", {3213, 94, 1181, 284}, {}, "#,##0.00"},
    {"PageFooter", "Label50", {0, 331, 3213, 283}, text("Data do Recolhimento.....:")},
    {"PageFooter", "Label51", {3213, 331, 5291, 283}, text("vide data em autenticação mecânica.")},
    {"PageFooter", "Label52", {0, 709, 3189, 283}, text("Momento (dia e hora).....:")},
    {"PageFooter", "Field43", {3189, 709, 6732, 283}, column("EMPENHO")},
    {"PageFooter", "Label53", {0, 921, 3189, 284}, text("Local....................:")},
    {"PageFooter", "Field44", {3189, 921, 6732, 284}, column("EMPENHO")},
    {"PageFooter", "Label34", {638, 2764, 3260, 283}, text("Ordenador da Despesa")},
    {"PageFooter", "Label35", {6165, 2764, 3260, 283}, text("Responsável pelo Empenho")},
    {"PageFooter",
     "Label54",
     {0, 1276, 7866, 283},
     text("Conferido, concluímos pela exatidão a prestação de contas acima,")},
    {"PageFooter", "Label55", {3331, 1630, 1346, 283}, text("Brumaleste,")},
    {"PageFooter", "Field45", {4677, 1630, 4748, 283}, column("EMPENHO")},
    {"PageFooter",
     "Label56",
     {71, 3402, 4819, 283},
     text("Data da Entrega: ______________________")},
    {"PageFooter",
     "Label57",
     {5102, 3402, 4819, 283},
     text("Data da Baixa: ______________________")},
    {"PageFooter", "Field46", {638, 2551, 3260, 213}},
    {"PageFooter", "Field47", {6165, 2551, 3260, 213}},
    {"PageFooter",
     "Label58",
     {71, 3118, 5244, 213},
     text("Dados preenchidos pelo controle interno")},
    {"PageFooter", "Field48", {4394, 94, 5952, 284}},
};

// The last page whose balance is carried on.
constexpr int kLastCarried = 10;
constexpr int kRowsOfPage = 41;

// Empenho 500/14 over 1.000,00, as the process screen asks for it.
PedidoImpressao request(const QMap<QString, QString>& changed = {}) {
  PedidoImpressao wanted{
      .relatorio = Relatorio::PrestContas,
      .comando = "Select * from PrestContas Where PROCESSO = 0050014 Order by DATA, SEQ;",
      .exibe = true,
      .campos = {{"Field1", "Davi Souza"},
                 {"Field2", "Saúde"},
                 {"Field3", "00500/14"},
                 {"Field37", "1.000,00"},
                 {"Field4", "01/11/2014"},
                 {"Field40", "700,00"},
                 {"Field42", "Motorista"},
                 {"Field43", " 21/11/2014 10:30"},
                 {"Field44", "Saúde"},
                 {"Field45", "21 de novembro de 2014"},
                 {"Field46", "Ana Lima"},
                 {"Field47", "Davi Souza"},
                 {"Field5", "03/11/2014"}}};
  for (auto field = changed.begin(); field != changed.end(); ++field) {
    wanted.campos[field.key()] = field.value();
  }
  return wanted;
}

QStringList allTexts(const Document& document, QStringView element) {
  QStringList texts;
  for (const Page& page : document.pages()) {
    texts += textsOf(page, element);
  }
  return texts;
}

QString reais(int amount) {
  return Format(Money::fromReais(amount), u"#,##0.00");
}

}  // namespace

class arPrestContasTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    test::addOpenProcess(*office_);
    registra_arPrestContas();
  }
  void cleanup() {
    for (QWidget* const window : OpenForms::all()) {
      delete window;
    }
    registra_impressao(Relatorio::PrestContas, {});
    office_.reset();
  }

  void standsAsDesigned() {
    const reporting::ReportLayout layout = reporting::readLayout(Desenho("arPrestContas"));
    QCOMPARE(test::layoutDifferences(layout, kTable), QString());
    QCOMPARE(test::unlistedElements(layout, kTable), QString("imgBrasao"));
    QVERIFY(layout.sections.at(0).kind == reporting::SectionKind::PageHeader);
    QStringList hidden;
    for (const reporting::SectionLayout& section : layout.sections) {
      for (const reporting::ElementLayout& element : section.elements) {
        if (!element.visible) {
          hidden << element.name;
        }
      }
    }
    QCOMPARE(hidden, QStringList({"Field37", "Field35"}));
  }

  void fillsItsPages_data() {
    QTest::addColumn<QList<int>>("rows");
    QTest::newRow("no notes") << QList<int>{0};
    QTest::newRow("one") << QList<int>{1};
    QTest::newRow("a page") << QList<int>{41};
    QTest::newRow("a page and one") << QList<int>{41, 1};
    QTest::newRow("two pages") << QList<int>{41, 41};
    const QList<int> tenPages(10, 41);
    QTest::newRow("ten pages") << tenPages;
    QTest::newRow("ten pages and one") << tenPages + QList<int>{1};
    QTest::newRow("more") << tenPages + QList<int>{41, 41, 8};
  }
  void fillsItsPages() {
    QFETCH(QList<int>, rows);
    const int total = std::accumulate(rows.begin(), rows.end(), 0);
    addNotes(total);
    const auto document = built(request());
    QCOMPARE(document->pageCount(), rows.size());
    int note = 0;
    for (const Page& page : document->pages()) {
      const int pagesBefore = page.number() - 1;
      QCOMPARE(page.text(u"Field39"),
               reais(1000 - kRowsOfPage * std::min(pagesBefore, kLastCarried)));
      QCOMPARE(page.text(u"Label46"), QString("ADIANTAMENTO"));
      const QStringList numbers = textsOf(page, u"Field38");
      const QStringList balances = textsOf(page, u"Field36");
      QCOMPARE(numbers.size(), rows.at(pagesBefore));
      QCOMPARE(balances.size(), numbers.size());
      for (qsizetype row = 0; row < numbers.size(); ++row) {
        ++note;
        QCOMPARE(numbers.at(row), QString::number(note));
        QCOMPARE(balances.at(row), reais(1000 - note));
      }
      QCOMPARE(test::cutTexts(page), QString());
      QCOMPARE(test::offPaper(page), QString());
    }
    QCOMPARE(note, total);
    QCOMPARE(test::collisions(document->page(0)), QString());
  }

  void aRowShowsItsNote() {
    addNote("2014-11-05", "NF 17", "POSTO", "12345000");
    addNote("2014-11-06", "45", "MERCADO", "600");
    const auto document = built(request());
    QCOMPARE(allTexts(*document, u"Field31"), QStringList({"05/11/2014", "06/11/2014"}));
    QCOMPARE(allTexts(*document, u"Field32"), QStringList({"NF 17", "45"}));
    QCOMPARE(allTexts(*document, u"Field33"), QStringList({"POSTO", "MERCADO"}));
    QCOMPARE(allTexts(*document, u"Field34"), QStringList({"1.234,50", "0,06"}));
    QCOMPARE(allTexts(*document, u"Field36"), QStringList({"-234,50", "-234,56"}));
    QCOMPARE(allTexts(*document, u"Field35"), QStringList());
    QCOMPARE(allTexts(*document, u"Field37"), QStringList());
  }

  void notesStandByDateAndThenAsEntered() {
    addNote("2014-11-09", "3", "c", "1");
    addNote("2014-11-05", "1", "a", "1");
    addNote("2014-11-09", "2", "d", "1");
    addNote("2014-11-08", "9", "b", "1");
    const auto document = built(request());
    QCOMPARE(allTexts(*document, u"Field33"), QStringList({"a", "b", "c", "d"}));
    QCOMPARE(allTexts(*document, u"Field38"), QStringList({"1", "2", "3", "4"}));
  }

  void emptyCellsStayEmpty() {
    office_->run("INSERT INTO PrestContas(PROCESSO, DESPESAS) VALUES (50014, NULL)");
    addNote("2014-11-05", "1", "a", "2500000");
    const auto document = built(request());
    QCOMPARE(allTexts(*document, u"Field31"), QStringList({"05/11/2014"}));
    QCOMPARE(allTexts(*document, u"Field38"), QStringList({"1", "2"}));
    QCOMPARE(allTexts(*document, u"Field36"), QStringList({"1.000,00", "750,00"}));
  }

  void balancesAreThoseOfTheAmountsAsPrinted() {
    addNote("2014-11-05", "1", "a", "40");
    addNote("2014-11-05", "2", "b", "40");
    const auto document = built(request());
    QCOMPARE(allTexts(*document, u"Field34"), QStringList({"0,00", "0,00"}));
    QCOMPARE(allTexts(*document, u"Field36"), QStringList({"1.000,00", "999,99"}));
  }

  void countsItsRowsInSixteenBits() {
    addNotes(32'768);
    const auto report = arPrestContas(request());
    QCOMPARE(test::errorOf([&report] { report->build(); }), 6);
    QCOMPARE(report->document()->pageCount(), 32'767 / kRowsOfPage);
  }

  void bearsTheCallersTexts() {
    addNotes(42);
    const auto document = built(request());
    const QMap<QString, QString> fields = request().campos;
    for (const Page& page : document->pages()) {
      for (auto field = fields.begin(); field != fields.end(); ++field) {
        if (field.key() != QString("Field37")) {
          QCOMPARE(page.text(field.key()), field.value());
        }
      }
      QCOMPARE(page.text(u"Field48"), QString("(setecentos reais)"));
      QCOMPARE(page.items(u"imgBrasao").size(), 1);
    }
  }

  void givesTheUnspentAmountInWords_data() {
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("words");
    QTest::newRow("nothing") << "0,00" << QString();
    QTest::newRow("a bare nothing") << "0" << QString();
    QTest::newRow("less than nothing") << "-0,01" << QString();
    QTest::newRow("a cent") << "0,01"
                            << "(um centavo)";
    QTest::newRow("the longest") << "454.454.454,54"
                                 << "(quatrocentos e cinquenta e quatro milhões quatrocentos e "
                                    "cinquenta e quatro mil quatrocentos e cinquenta e quatro "
                                    "reais e cinquenta e quatro centavos)";
  }
  void givesTheUnspentAmountInWords() {
    QFETCH(QString, amount);
    const Page page = firstPage(request({{"Field40", amount}}));
    QTEST(page.text(u"Field48"), "words");
    QCOMPARE(page.text(u"Field40"), amount);
  }

  void takesTheAdvanceAsTheScreenShowsIt_data() {
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("carried");
    QTest::newRow("nothing") << ",00"
                             << "0,00";
    QTest::newRow("without cents") << "1000"
                                   << "1.000,00";
    QTest::newRow("no number, no notes") << "--"
                                         << "--";
  }
  void takesTheAdvanceAsTheScreenShowsIt() {
    QFETCH(QString, shown);
    QTEST(firstPage(request({{"Field37", shown}})).text(u"Field39"), "carried");
  }

  void extremeAmountsFit() {
    addNote("2014-11-05", "1", "a", "9999999999900");
    addNote("2014-11-05", "2", "b", "9999999999900");
    const auto document = built(request({{"Field37", "999.999.999,99"},
                                         {"Field40", "999.999.999,99"},
                                         {"Field2", QString("Secretaria ").repeated(7)},
                                         {"Field44", QString("Secretaria ").repeated(7)}}));
    QCOMPARE(allTexts(*document, u"Field36"), QStringList({"0,00", "-999.999.999,99"}));
    QCOMPARE(test::cutTexts(document->page(0)), QString());
    QCOMPARE(test::collisions(document->page(0)), QString());
  }

  void whatIsTooLongIsCutWithASign() {
    const QString supplier = QString("WMWM ").repeated(16).trimmed();
    const QString number = QString("NF 123456789/").repeated(4);
    addNote("2014-11-05", number.toUtf8(), supplier.toUtf8(), "1");
    const QString name = QString("WM ").repeated(100).trimmed();
    const Page page = firstPage(request({{"Field1", name}, {"Field46", name}, {"Field47", name}}));
    const QStringList cut{"Field1", "Field32", "Field33", "Field46", "Field47"};
    for (const QString& element : cut) {
      QVERIFY2(page.text(element).endsWith(reporting::kCutSign), qPrintable(page.text(element)));
    }
    QCOMPARE(test::cutTexts(page).split('\n').size(), cut.size());
    QCOMPARE(test::collisions(page), QString());
  }

  void theLongestEntryOfTheScreenFits() {
    const QString supplier = QString("COMERCIO DE MATERIAIS ELETRICOS BRUMALESTE LT").left(45);
    QCOMPARE(supplier.size(), 45);
    addNote("2014-11-05", "1234567890", supplier.toUtf8(), "1");
    const Page page = firstPage(request());
    QCOMPARE(page.text(u"Field33"), supplier);
    QCOMPARE(page.text(u"Field32"), QString("1234567890"));
  }

  void canBeBuiltAgain() {
    addNotes(42);
    const auto report = arPrestContas(request());
    report->build();
    report->start();
    report->build();
    QCOMPARE(report->document()->page(0).text(u"Field39"), QString("1.000,00"));
    QCOMPARE(report->document()->page(1).text(u"Field39"), QString("959,00"));
  }

  void isShownFirst() {
    addNotes(42);
    imprime(request());
    const auto windows = OpenForms::all();
    QCOMPARE(windows.size(), 1);
    auto* const preview = qobject_cast<ReportPreview*>(windows.first());
    QVERIFY(preview != nullptr && preview->isVisible());
    QTRY_VERIFY(preview->document()->isComplete());
    QCOMPARE(preview->document()->pageCount(), 2);
    QCOMPARE(preview->document()->title(), QString("Prestação de Contas de Adiantamento"));
    preview->close();
  }

  void isPrintedAfterTheDialog() {
    addNotes(42);
    const QString pdf = office_->file("impresso.pdf");
    ScriptedDialogs dialogs;
    dialogs.expectPrinter(pdf);
    PedidoImpressao printed = request();
    printed.exibe = false;
    imprime(printed);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(OpenForms::all().isEmpty());
    const QString texts = test::textsOfPdf(pdf);
    QVERIFY2(texts.contains("Data Nº. Nota Identificação do Fornencedor (Razão Social) "
                            "Despesa R$ Saldo R$ ADIANTAMENTO 959,00 42 "),
             qPrintable(texts));
  }

  void aCancelledDialogPrintsNothing() {
    ScriptedDialogs dialogs;
    dialogs.expectPrinter({});
    PedidoImpressao printed = request();
    printed.exibe = false;
    imprime(printed);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void readsInOrderInThePdf() {
    addNote("2014-11-05", "17", "POSTO", "3000000");
    const QString pdf = office_->file("prestacao.pdf");
    reporting::exportPdf(*built(request()), pdf);
    QCOMPARE(test::textsOfPdf(pdf),
             QString("PREFEITURA MUNICIPAL DE BRUMALESTE ESTADO DE SÃO PAULO "
                     "PRESTAÇÃO DE CONTAS DE ADIANTAMENTO Responsável....: Davi Souza "
                     "Cargo ou Função: Motorista Orgão .........: Saúde Empenho n°.: 00500/14 "
                     "Data de Abertura: 01/11/2014 Data de Ínicio: 03/11/2014 "
                     "Data Nº. Nota Identificação do Fornencedor (Razão Social) Despesa R$ "
                     "Saldo R$ ADIANTAMENTO 1.000,00 1 05/11/2014 17 POSTO 300,00 700,00 "
                     "Importância não Aplicada.: 700,00 (setecentos reais) "
                     "Data do Recolhimento.....: vide data em autenticação mecânica. "
                     "Momento (dia e hora).....: 21/11/2014 10:30 "
                     "Local....................: Saúde "
                     "Conferido, concluímos pela exatidão a prestação de contas acima, "
                     "Brumaleste, 21 de novembro de 2014 Ana Lima Davi Souza "
                     "Ordenador da Despesa Responsável pelo Empenho "
                     "Dados preenchidos pelo controle interno "
                     "Data da Entrega: ______________________ "
                     "Data da Baixa: ______________________"));
  }

  void failuresAreTold_data() {
    QTest::addColumn<bool>("shown");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("statement");
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("detail");
    const QString asked = request().comando;
    for (const bool shown : {true, false}) {
      const char* const way = shown ? "shown" : "printed";
      QTest::addRow("%s: no advance", way) << shown << "Field37"
                                           << "--" << asked << 13 << "";
      QTest::addRow("%s: no such element", way) << shown << "Field99"
                                                << "x" << asked << 9 << "arPrestContas.Field99";
      QTest::addRow("%s: no such table", way) << shown << "Field1"
                                              << "x"
                                              << "Select * from Nada" << 3078 << "Nada";
    }
  }
  void failuresAreTold() {
    QFETCH(bool, shown);
    QFETCH(QString, field);
    QFETCH(QString, value);
    QFETCH(QString, statement);
    QFETCH(int, error);
    QFETCH(QString, detail);
    addNotes(1);
    PedidoImpressao wanted = request({{field, value}});
    wanted.exibe = shown;
    wanted.comando = statement;
    ScriptedDialogs dialogs;
    dialogs.expectBox(
        boxes::internalError(static_cast<ErrorNumber>(error), kFuncaoImprimir, detail));
    Sob_trava(kFuncaoImprimir, [&wanted] { imprime(wanted); });
    QTRY_VERIFY2(dialogs.satisfied(), dialogs.report());
  }

 private:
  // `units`: ten-thousandths of a real.
  void addNote(const QByteArray& day, const QByteArray& number, const QByteArray& supplier,
               const QByteArray& units) const {
    office_->run(("INSERT INTO PrestContas(PROCESSO, DATA, ORDEM, HISTORICO, DESPESAS) VALUES "
                  "(50014, '" +
                  day + " 00:00:00', '" + number + "', '" + supplier + "', " + units + ")")
                     .constData());
  }
  // Notes of 1,00 each, and one of another empenho.
  void addNotes(int count) const {
    office_->run(("INSERT INTO Adiantamento(EMPENHO, PROCESSO) VALUES (50114, 114);"
                  "INSERT INTO PrestContas(PROCESSO, DATA, HISTORICO, DESPESAS) VALUES "
                  "(50114, '2014-11-05 00:00:00', 'DE OUTRO', 10000);"
                  "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                  QByteArray::number(count) +
                  ") INSERT INTO PrestContas(PROCESSO, DATA, ORDEM, HISTORICO, DESPESAS) "
                  "SELECT 50014, datetime('2014-01-01', (i / 10) || ' days'), 'NF ' || i, "
                  "'FORNECEDOR ' || i, 10000 FROM n WHERE i <= " +
                  QByteArray::number(count))
                     .constData());
  }
  static std::shared_ptr<const Document> built(const PedidoImpressao& wanted) {
    const auto report = arPrestContas(wanted);
    report->build();
    return report->document();
  }
  Page firstPage(const PedidoImpressao& wanted) {
    document_ = built(wanted);
    return document_->page(0);
  }

  std::unique_ptr<test::Office> office_;
  std::shared_ptr<const Document> document_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::arPrestContasTest)
#include "arPrestContas_test.moc"
