// The goods form, and the sub-report and statements that the earlier accountability left behind.
#include "reports/arPrestacao.h"

#include <QPrinterInfo>

#include "platform/reporting/Output.h"
#include "records/Impressao.h"
#include "reports/Saida.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/reports/LayoutTable.h"
#include "tests/support/PdfTools.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

using reporting::Document;
using reporting::Page;
using test::column;
using test::ElementRow;
using test::text;
using test::textsOf;

namespace {

constexpr int kLines = 10;
constexpr int kTops[kLines] = {331, 850, 1370, 1890, 2409, 2929, 3449, 3969, 4488, 5008};
const char* const kBox = "(    ) SIM  (    ) NÃO";

const QList<ElementRow> kForm{
    {"ReportHeader", "Label28", {142, 1134, 1370, 283}, text("Requisitante:")},
    {"ReportHeader", "Label29", {142, 1465, 1370, 283}, text("Utilizado em:")},
    {"ReportHeader", "Label30", {142, 1843, 1417, 283}, text("Justificativa:")},
    {"ReportHeader",
     "Label33",
     {94, 756, 10158, 283},
     text("DISPONIBILIDADE DE MERCADORIAS EM ESTOQUE")},
    {"ReportHeader", "Field16", {1559, 1134, 8693, 283}, column("REQUISITANTE")},
    {"ReportHeader", "Field17", {1559, 1465, 8693, 283}, column("LOCAL")},
    {"ReportHeader", "Field18", {1559, 1843, 8693, 566}, column("JUSTIFICATIVA"), "00000/00"},
    {"ReportHeader", "Label1", {3024, 94, 4441, 331}, text("PREFEITURA MUNICIPAL DE BRUMALESTE")},
    {"ReportHeader", "Label2", {3024, 378, 4441, 331}, text("ESTADO DE SÃO PAULO")},
    {"Detail", "Field21", {1417, 331, 6851, 472}, column("PRODUTO1")},
    {"Detail", "Field33", {378, 331, 992, 283}, column("QUANT1"), "0000"},
    {"Detail", "Label65", {47, 331, 284, 283}, text("01")},
    {"Detail", "Label66", {8362, 425, 1890, 284}, text(kBox)},
    {"Detail", "Field34", {1417, 850, 6851, 473}, column("PRODUTO2")},
    {"Detail", "Field35", {378, 850, 992, 284}, column("QUANT2"), "0000"},
};

const QList<ElementRow> kNotes{
    {"GroupHeader1", "Label1", {4961, 0, 1559, 189}, text("ADIANTAMENTO")},
    {"GroupHeader1", "Field4", {7559, 0, 1370, 236}, column("VALOR"), "#,##0.00"},
    {"Detail", "Field1", {0, 0, 1370, 283}, column("DATA")},
    {"Detail", "Field2", {1559, 0, 1323, 283}, column("ORDEM")},
    {"Detail", "Field3", {2882, 0, 4488, 283}, column("HISTORICO")},
    {"Detail", "Field5", {9024, 0, 1228, 283}, column("DESPESAS"), "#,##0.00"},
    {"GroupFooter1", "Label6", {3024, 47, 1228, 236}, text("TOTAIS")},
    {"GroupFooter1", "Field10", {9024, 47, 1275, 236}, column("DESPESAS"), "#,##0.00"},
    {"GroupFooter1", "Field11", {7559, 47, 1370, 236}, column("VALOR"), "#,##0.00"},
};

// The elements of the layout that show that column, text or format, in the order of the file.
template <typename Choice>
QList<reporting::ElementLayout> elementsWhere(const reporting::ReportLayout& layout,
                                              const Choice& chosen) {
  QList<reporting::ElementLayout> found;
  for (const reporting::SectionLayout& section : layout.sections) {
    for (const reporting::ElementLayout& element : section.elements) {
      if (chosen(element)) {
        found << element;
      }
    }
  }
  return found;
}

// The notes of empenho 500/14 as the earlier accountability asks for them.
QString notesStatement() {
  return QStringLiteral(
      "SELECT PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, PrestContas.DESPESAS, "
      "Requisicao.VALOR FROM Requisicao INNER JOIN (Adiantamento INNER JOIN PrestContas ON "
      "Adiantamento.EMPENHO = PrestContas.PROCESSO) ON Requisicao.SEQ = Adiantamento.PROCESSO "
      "Where PrestContas.Processo = 0050014 ORDER BY PrestContas.DATA;");
}

void printForm(const QString& statement) {
  imprime({.relatorio = Relatorio::Mercadorias, .comando = statement});
}

QString statement(int item) {
  return QStringLiteral("SELECT * FROM Produtos WHERE ITEM = %1").arg(item);
}

}  // namespace

class arPrestacaoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    registra_arPrestacao();
  }
  void cleanup() {
    registra_impressao(Relatorio::Mercadorias, {});
    registra_impressao(Relatorio::PrestacaoAnterior, {});
    office_.reset();
  }

  void formStandsAsDesigned() {
    const reporting::ReportLayout layout = reporting::readLayout(Desenho("arPrestacao"));
    QCOMPARE(test::layoutDifferences(layout, kForm), QString());
  }

  void everyLineStandsAtItsHeight() {
    const reporting::ReportLayout layout = reporting::readLayout(Desenho("arPrestacao"));
    const auto boxes = elementsWhere(layout, [](const reporting::ElementLayout& element) {
      return element.text == QString::fromUtf8(kBox);
    });
    QCOMPARE(boxes.size(), kLines);
    for (int line = 0; line < kLines; ++line) {
      const auto bound = [&](const char* name) {
        const QString column = QStringLiteral("%1%2").arg(QLatin1String(name)).arg(line + 1);
        return elementsWhere(layout, [&column](const reporting::ElementLayout& element) {
          return element.column == column;
        });
      };
      const auto products = bound("PRODUTO");
      const auto amounts = bound("QUANT");
      QCOMPARE(products.size(), 1);
      QCOMPARE(amounts.size(), 1);
      QCOMPARE(products.at(0).place.topLeft(), QPoint(1417, kTops[line]));
      QCOMPARE(amounts.at(0).place.topLeft(), QPoint(378, kTops[line]));
      QCOMPARE(products.at(0).place.width(), 6851);
      QCOMPARE(amounts.at(0).place.width(), 992);
      QCOMPARE(amounts.at(0).format, QString("0000"));
      QCOMPARE(boxes.at(line).place.topLeft(), QPoint(8362, kTops[line] + 94));
      const QString number = QStringLiteral("%1").arg(line + 1, 2, 10, QLatin1Char('0'));
      const auto numbers = elementsWhere(
          layout, [&number](const reporting::ElementLayout& e) { return e.text == number; });
      QCOMPARE(numbers.size(), 1);
      QCOMPARE(numbers.at(0).place, QRect(47, kTops[line], 284, 283));
    }
  }

  void columnHeadsStandOnAShadedBand() {
    const reporting::ReportLayout layout = reporting::readLayout(Desenho("arPrestacao"));
    const auto bands = elementsWhere(
        layout, [](const reporting::ElementLayout& e) { return e.backColor.isValid(); });
    QCOMPARE(bands.size(), 1);
    for (const char* const name : {"Label39", "Label40", "Label43"}) {
      const auto heads = elementsWhere(
          layout, [name](const reporting::ElementLayout& e) { return e.name == QString(name); });
      QCOMPARE(heads.size(), 1);
      QVERIFY(bands.at(0).place.contains(heads.at(0).place));
    }
  }

  void showsARequest() {
    addRequest("'12'");
    const Page page = pageOf(arPrestacao(statement(1)));
    QCOMPARE(page.text(u"Field16"), QString("José"));
    QCOMPARE(page.text(u"Field17"), QString("Garagem"));
    QCOMPARE(page.text(u"Field18"), QString("Reposição do estoque"));
    QCOMPARE(page.text(u"Field21"), QString("Produto 1"));
    QCOMPARE(page.text(u"Field33"), QString("0012"));
    QCOMPARE(page.text(u"Field34"), QString("Produto 2"));
    QCOMPARE(page.document().pageCount(), 1);
    QCOMPARE(test::cutTexts(page), QString());
    QCOMPARE(test::offPaper(page), QString());
    QCOMPARE(test::collisions(page), QString());
  }

  void showsAmounts_data() {
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("number") << QByteArray("'7'") << "0007";
    QTest::newRow("four digits") << QByteArray("'9999'") << "9999";
    QTest::newRow("words") << QByteArray("'2 kg'") << "2 kg";
    QTest::newRow("none") << QByteArray("NULL") << QString();
  }
  void showsAmounts() {
    QFETCH(QByteArray, stored);
    addRequest(stored);
    QTEST(pageOf(arPrestacao(statement(1))).text(u"Field33"), "shown");
  }

  void anEmptyFormKeepsItsLines() {
    office_->run("INSERT INTO Produtos(ITEM) VALUES (5)");
    const Page page = pageOf(arPrestacao(statement(5)));
    QCOMPARE(page.text(u"Label65"), QString("01"));
    QCOMPARE(page.text(u"Field21"), QString());
    QCOMPARE(page.text(u"Field33"), QString());
  }

  void theLongestRequestFits() {
    const QByteArray product = QByteArray("Mangueira de borracha ").repeated(5).left(100);
    office_->run(("INSERT INTO Produtos(ITEM, REQUISITANTE, LOCAL, JUSTIFICATIVA, PRODUTO1, QUANT1,"
                  "PRODUTO2, PRODUTO10, QUANT10) VALUES (1, 'João', '" +
                  QByteArray(35, 'W') + "', '" +
                  QStringLiteral("Manutenção corretiva da frota ").repeated(7).left(200).toUtf8() +
                  "', '" + product +
                  "', '1234', 'uma' || char(10) || 'duas' || char(10) || 'três', '" + product +
                  "', '1')")
                     .constData());
    const Page page = pageOf(arPrestacao(statement(1)));
    QCOMPARE(test::cutTexts(page), QString());
    QCOMPARE(test::collisions(page), QString());
    QCOMPARE(page.items(u"Field34").at(0).lines, QStringList({"uma", "duas", "três"}));
  }

  void readsInOrderInThePdf() {
    addRequest("'12'");
    const auto report = arPrestacao(statement(1));
    report->build();
    const QString pdf = office_->file("pedido.pdf");
    reporting::exportPdf(*report->document(), pdf);
    const QString words = test::textsOfPdf(pdf);
    QVERIFY2(words.startsWith("PREFEITURA MUNICIPAL DE BRUMALESTE ESTADO DE SÃO PAULO "
                              "DISPONIBILIDADE DE MERCADORIAS EM ESTOQUE Requisitante: José "
                              "Utilizado em: Garagem Justificativa: Reposição do estoque "
                              "QUANT DESCRIÇÃO DISPONÍVEL "),
             qPrintable(words));
    QVERIFY2(words.endsWith("Assinatura do Requisitante "
                            "Assinatura do Responsável do Almoxarifado "
                            "Data da Verificação: __________/__________/__________"),
             qPrintable(words));
  }

  void isPrintedWithoutAQuestion() {
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
      QSKIP("there is a printer here");
    }
    addRequest("'12'");
    test::ScriptedDialogs dialogs;
    QCOMPARE(test::errorOf([] { printForm(statement(1)); }), 482);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void aStatementWithoutANumberIsAnError() {
    QCOMPARE(test::errorOf([] { printForm("SELECT * FROM Produtos WHERE ITEM = "); }), 3075);
  }

  void notesStandAsDesigned() {
    const reporting::ReportLayout layout = reporting::readLayout(Desenho("srPrestacao"));
    QCOMPARE(test::layoutDifferences(layout, kNotes), QString());
    QCOMPARE(test::unlistedElements(layout, kNotes), QString());
    QCOMPARE(layout.sections.back().name, QString("ReportFooter"));
    QVERIFY(layout.sections.back().elements.empty());
  }

  void notesHaveTheirTotals() {
    addNotes();
    const Page page = pageOf(srPrestacao(notesStatement()));
    QCOMPARE(textsOf(page, u"Field1"), QStringList({"05/11/2014", "06/11/2014"}));
    QCOMPARE(textsOf(page, u"Field2"), QStringList({"2", "1"}));
    QCOMPARE(textsOf(page, u"Field3"), QStringList({"MERCADO", "POSTO"}));
    QCOMPARE(textsOf(page, u"Field5"), QStringList({"1.234,50", "100,00"}));
    QCOMPARE(page.text(u"Field4"), QString("1.000,00"));
    QCOMPARE(page.text(u"Field10"), QString("1.334,50"));
    QCOMPARE(page.text(u"Field11"), QString("1.000,00"));
    QCOMPARE(test::collisions(page), QString());
  }

  void notesCanStandInAnotherReport() {
    addNotes();
    const auto report = std::make_shared<reporting::Report>(test::layoutOf(
        R"({"kind": "Detail", "height": 100, "elements": [
            {"kind": "SubReport", "name": "notas", "left": 0, "top": 50, "width": 9000,
             "height": 50}]})"));
    report->setSubReport(u"notas", srPrestacao(notesStatement()));
    QCOMPARE(pageOf(report).text(u"Field10"), QString("1.334,50"));
  }

  void theEarlierAccountabilityIsNoMore() {
    const auto error = test::raisedBy([] {
      imprime({.relatorio = Relatorio::PrestacaoAnterior,
               .comando = notesStatement(),
               .campos = {{"Data2", "SELECT 1"}, {"Field23", "agora"}}});
    });
    QVERIFY(error);
    QCOMPARE(error->number(), 9);
    QVERIFY2(error->description().contains("arPrestacao.Data2"), qPrintable(error->description()));
  }

 private:
  // Item 1 with a product on each line; `amount` is the SQL of the first one's.
  void addRequest(const QByteArray& amount) const {
    QByteArray columns;
    QByteArray values;
    for (int line = 1; line <= kLines; ++line) {
      const QByteArray number = QByteArray::number(line);
      columns += ", PRODUTO" + number + ", QUANT" + number;
      values += ", 'Produto " + number + "', " + (line == 1 ? amount : "'" + number + "'");
    }
    office_->run(("INSERT INTO Produtos(ITEM, REQUISITANTE, LOCAL, JUSTIFICATIVA" + columns +
                  ") VALUES (1, 'José', 'Garagem', 'Reposição do estoque'" + values + ")")
                     .constData());
  }
  void addNotes() const {
    test::addMasterRows(*office_);
    test::addOpenProcess(*office_);
    office_->run(
        "INSERT INTO PrestContas(PROCESSO, DATA, ORDEM, HISTORICO, DESPESAS) VALUES "
        "(50014, '2014-11-06 00:00:00', '1', 'POSTO', 1000000),"
        "(50014, '2014-11-05 00:00:00', '2', 'MERCADO', 12345000)");
  }

  Page pageOf(const std::shared_ptr<reporting::Report>& report) {
    report->build();
    document_ = report->document();
    return document_->page(0);
  }

  std::unique_ptr<test::Office> office_;
  std::shared_ptr<const Document> document_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::arPrestacaoTest)
#include "arPrestacao_test.moc"
