// The requisition form: its design, what it fills in, its pages, and how it leaves the program.
#include "reports/arRequisicao2.h"

#include <cmath>
#include <memory>

#include "foundation/Erros.h"
#include "foundation/Ini.h"
#include "platform/controls/OpenForms.h"
#include "platform/reporting/LayoutReader.h"
#include "platform/reporting/Output.h"
#include "platform/reporting/ReportPreview.h"
#include "records/Impressao.h"
#include "reports/Saida.h"
#include "tests/reports/LayoutTable.h"
#include "tests/support/PdfTools.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

using reporting::Document;
using reporting::Page;
using reporting::PlacedItem;
using reporting::ReportPreview;
using test::column;
using test::ElementRow;
using test::Office;
using test::RuledLine;
using test::ScriptedDialogs;
using test::text;

namespace {

const QList<ElementRow> kTable{
    {"PageHeader", "Label1", {3047, 283, 4394, 355}, text("PREFEITURA MUNICIPAL DE BRUMALESTE")},
    {"PageHeader", "Label2", {3047, 567, 4394, 354}, text("ESTADO DE SÃO PAULO")},
    {"PageHeader", "Image1", {283, 71, 993, 992}},
    {"PageHeader", "Label3", {0, 1181, 10346, 284}, text("REQUISIÇÃO DE ADIANTAMENTO")},
    {"Detail", "Label4", {142, 236, 2764, 260}, text("Data da Solicitação.....:")},
    {"Detail", "Label5", {142, 520, 2764, 260}, text("Orgão Executor..........:")},
    {"Detail", "Label6", {142, 850, 2764, 284}, text("Responsável pelo Recurso:")},
    {"Detail", "Label7", {142, 1205, 2764, 283}, text("Documento...............:")},
    {"Detail", "Label8", {2906, 1205, 425, 283}, text("RG:")},
    {"Detail", "Label9", {142, 1488, 2764, 284}, text("Cargo ou Função.........:")},
    {"Detail", "Label10", {5173, 1205, 567, 283}, text("CPF:")},
    {"Detail", "Label11", {142, 3047, 2764, 284}, text("Valor Requisitado.......:")},
    {"Detail", "Label13", {142, 3472, 3118, 284}, text("Finalidade do Adiantamento:")},
    {"Detail", "Label14", {142, 5031, 2197, 284}, text("Prazo de Aplicação:")},
    {"Detail", "Label15", {142, 5457, 1701, 283}, text("Justificativa:")},
    {"Detail",
     "Label16",
     {142, 8126, 9165, 283},
     text("Este adiantamento correrá por conta da dotação orçamentária abaixo especificada:")},
    {"Detail", "Label18", {142, 8504, 2409, 283}, text("* Categoria Econômica:")},
    {"Detail", "Label19", {142, 8787, 2409, 284}, text("* Ficha (Dotação)....:")},
    {"Detail", "Field1", {2906, 213, 1346, 283}, column("DATA")},
    {"Detail", "Field2", {2906, 496, 7157, 284}, column("ORGAO")},
    {"Detail", "Field3", {2906, 780, 6944, 354}, column("NOME1")},
    {"Detail", "Field4", {3331, 1205, 1842, 283}, column("RG1")},
    {"Detail", "Field5", {5740, 1205, 1843, 283}, column("CPF1"), "000\\.000\\.000\\-00"},
    {"Detail", "Field6", {2906, 1488, 7015, 284}, column("CARGO")},
    {"Detail", "Field7", {2906, 3047, 1275, 284}, column("VALOR"), "#,##0.00"},
    {"Detail", "Field8", {4181, 3047, 5882, 284}},
    {"Detail", "Field9", {142, 3756, 9921, 709}, column("LEI")},
    {"Detail", "Field10", {142, 5740, 9921, 2126}, column("JUSTIFICATIVA")},
    {"Detail", "Field14", {2551, 8504, 6662, 283}, column("ELEMENTO")},
    {"Detail", "Field15", {2551, 8787, 6591, 284}, column("FICHA")},
    {"Detail", "Field16", {4252, 3472, 5811, 284}, column("TIPO")},
    {"Detail", "Field17", {2339, 5031, 4252, 284}, column("PRAZO")},
    {"Detail", "Field19", {3260, 3472, 1134, 284}, text("Despesas /")},
    {"Detail", "Label29", {142, 2055, 2764, 284}, text("Nome do Ordenador.......:")},
    {"Detail", "Label30", {142, 2339, 2764, 283}, text("Documento...............:")},
    {"Detail", "Label31", {2906, 2339, 425, 283}, text("RG:")},
    {"Detail", "Label32", {142, 2622, 2764, 284}, text("Cargo ou Função.........:")},
    {"Detail", "Label33", {5150, 2362, 567, 236}, text("CPF:")},
    {"Detail", "Field25", {2906, 2055, 7157, 284}, column("NOME")},
    {"Detail", "Field26", {3307, 2362, 1843, 284}, column("RG")},
    {"Detail", "Field27", {5717, 2362, 1937, 236}, column("CPF"), "000\\.000\\.000\\-00"},
    {"Detail", "Field28", {2906, 2622, 7086, 284}, column("FUNCAO")},
    {"Detail", "Field31", {142, 4465, 9921, 566}, column("MATERIAIS")},
    {"PageFooter", "Label20", {614, 425, 3307, 284}, text("Assinatura do Responsável")},
    {"PageFooter", "Label21", {6142, 425, 3307, 284}, text("Assinatura do Ordenador")},
    {"PageFooter",
     "Label22",
     {2740, 992, 5244, 284},
     text("AUTORIZAÇÃO DE ABERTURA DO ADIANTAMENTO")},
    {"PageFooter",
     "Label23",
     {142, 1346, 9850, 497},
     text("Autorizo a concessão do adiantamento solicitado, mediante a inexistência de atos "
          "pendentes")},
    {"PageFooter",
     "Label24",
     {3402, 2126, 6590, 283},
     text("Brumaleste,________ de _________________ de _________")},
    {"PageFooter", "Label27", {2693, 4157, 5244, 284}, text("Nº DO PROCESSO: _________/____")},
    {"PageFooter", "Field18", {709, 4110, 1559, 284}, column("SEQ"), "000000"},
    {"PageFooter", "Field20", {4677, 4110, 898, 236}},
    {"PageFooter", "Field21", {5882, 4110, 496, 284}},
    {"PageFooter", "Field22", {4890, 2126, 638, 213}},
    {"PageFooter", "Field23", {6236, 2126, 1843, 213}},
    {"PageFooter", "Field24", {8787, 2126, 1063, 213}},
    {"PageFooter", "Field29", {4063, 3213, 4252, 236}},
    {"PageFooter", "Field32", {4063, 3449, 4252, 236}},
    {"PageFooter", "Field33", {567, 638, 3402, 283}},
    {"PageFooter", "Field34", {6094, 638, 3402, 283}}};

const QList<RuledLine> kLines{
    {"Detail", 1913, 10346},         {"Detail", 2976, 10346},     {"Detail", 3402, 10276},
    {"Detail", 5386, 10346},         {"Detail", 8031, 10346},     {"Detail", 9260, 10346},
    {"PageFooter", 945, 10346},      {"PageFooter", 1276, 10346}, {"PageFooter", 4016, 10346},
    {"PageFooter", 378, 3402, 567},   // to sign on: the responsible person
    {"PageFooter", 378, 3402, 6094},  // the expense orderer
    {"PageFooter", 3010, 4252, 4063}  // the head of finance
};

// What is printed over the blanks of labels.
const QSet<QString> kOverprint{QStringLiteral("Field20"), QStringLiteral("Field21"),
                               QStringLiteral("Field22"), QStringLiteral("Field23"),
                               QStringLiteral("Field24")};

const QString kReq = QStringLiteral("Select * from Sel_Print_req WHERE Requisicao.SEQ = ");
const QString kAvulso = QStringLiteral("Select * from Sel_Print_reqavulso WHERE ReqAvulso.SEQ = ");

Box question() {
  return {.text = QStringLiteral("Deseja mostrar o número do processo e a data de abertura?"),
          .title = QStringLiteral("Aviso"),
          .icon = BoxIcon::Exclamation,
          .buttons = {Button::Yes, Button::No},
          .defaultButton = Button::Yes};
}

std::shared_ptr<const Document> pagesOf(const QString& statement) {
  const auto report = arRequisicao2(statement);
  report->build();
  return report->document();
}

// What no page of the form may show: letters on letters, texts that were cut, items off the paper.
QString flaws(const Document& document) {
  QString found;
  for (const Page& page : document.pages()) {
    found += test::collisions(page, kOverprint) + test::cutTexts(page) + test::offPaper(page);
  }
  return found;
}

void setOption(const Office& office, const char* value) {
  Grava_ini(QStringLiteral("Requisicao"), QStringLiteral("valor"), QString::fromLatin1(value),
            office.config());
}

void run(const Office& office, const QString& sql) {
  office.run(sql.toUtf8().constData());
}

// Process 1214 of 20/11/2014, with every column filled and nobody asking.
void addFullProcess(const Office& office) {
  setOption(office, "0");
  test::addMasterRows(office);
  office.run(
      "UPDATE Orgao SET ORGAO = 'Secretaria de Educação e Cultura' WHERE IDORGAO = 2;"
      "UPDATE Executor SET NOME = 'Inês d''Ávila Conceição', RG = '22.333.444-5',"
      "  CPF = '01234567890', FUNCAO = 'Secretária';"
      "UPDATE Tomador SET NOME1 = 'João Müller Sant''Ana', RG1 = 'MG-1.234.567',"
      "  CPF1 = '98765432100', CARGO = 'Motorista';"
      "UPDATE Tipos SET LEI = 'Lei n° 1.482, artigo 4°', ELEMENTO = '339030 - Consumo',"
      "  MATERIAIS = 'Material de expediente';"
      "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE, JUSTIFICATIVA, FICHA)"
      " VALUES (1214, '2014-11-20 00:00:00', 1, 1, 12345600, 1, 'Compra d''água', '128');");
}

QString textOfLength(int letters) {
  QString words;
  while (words.size() < letters) {
    words += QStringLiteral("Aquisição d'água e de materiais urgentes para a unidade %1. ")
                 .arg(words.size());
  }
  return words.left(letters);
}

void setJustification(const Office& office, int letters) {
  const QString words = textOfLength(letters).replace(QLatin1Char('\''), QLatin1String("''"));
  run(office, QStringLiteral("UPDATE Requisicao SET JUSTIFICATIVA = '%1'").arg(words));
}

// The element's letters on the page.
QRectF lettersOf(const Page& page, const char* element) {
  for (const reporting::StoredItem& item : page.stored()) {
    if (page.document().style(item.style).element == QLatin1String(element)) {
      return test::linesOnPaper(page, item).value(0);
    }
  }
  return {};
}

// Where the blank number `number` (0 the first) of a label stands.
QRectF blankOf(const Page& page, const char* label, int number) {
  const QRectF line = lettersOf(page, label);
  const QString words = page.text(QString::fromLatin1(label));
  const double pitch = line.width() / double(words.size());
  qsizetype start = 0;
  for (int passed = 0; passed <= number; ++passed) {
    start = words.indexOf(QLatin1Char('_'), start);
    qsizetype end = start;
    while (end < words.size() && words[end] == QLatin1Char('_')) {
      ++end;
    }
    if (passed == number) {
      return {line.x() + double(start) * pitch, line.y(), double(end - start) * pitch,
              line.height()};
    }
    start = end;
  }
  return {};
}

// The previews that are open, in the order of their opening.
QList<ReportPreview*> previews() {
  QList<ReportPreview*> open;
  for (QWidget* const form : OpenForms::all()) {
    if (auto* const preview = qobject_cast<ReportPreview*>(form)) {
      open << preview;
    }
  }
  return open;
}

}  // namespace

class arRequisicao2Test : public QObject {
  Q_OBJECT

 private slots:
  void everyElementHasItsPlace();
  void headingsAreBoldAndCentred();
  void oneFormFillsOnePage();
  void demonstrationProcessesArePrinted();
  void everyColumnHasItsField();
  void standaloneRequisition();
  void cpfIsPrintedInItsForm_data();
  void cpfIsPrintedInItsForm();
  void amountIsToldInWords_data();
  void amountIsToldInWords();
  void nullsPrintEmpty();
  void yesFillsNumberAndDateIn();
  void noLeavesThemBlank();
  void otherSettingsAskNothing_data();
  void otherSettingsAskNothing();
  void fillsInOverTheBlanks_data();
  void fillsInOverTheBlanks();
  void signaturesHaveTheirNames();
  void longNamesAreWhole();
  void longTextsMoveWhatFollows();
  void longJustificationGoesOn_data();
  void longJustificationGoesOn();
  void everyPageAsksAgain();
  void withoutARowOnlyHeadings();
  void pdfReadsAsThePage();
  void isShownOnRequest();
  void isPrintedOnRequest();
  void failuresAreTold();
};

void arRequisicao2Test::everyElementHasItsPlace() {
  const auto layout = reporting::readLayout(Desenho(QStringLiteral("arRequisicao2")));
  QCOMPARE(test::layoutDifferences(layout, kTable), QString());
  QCOMPARE(test::unlistedElements(layout, kTable), QString());
  QCOMPARE(test::missingLines(layout, kLines), QString());
  QCOMPARE(layout.paper, QSize(11906, 16838));
  QCOMPARE(layout.printWidth, 10346);
  QCOMPARE(layout.margins.left() + layout.printWidth + layout.margins.right(), 11906);
}

void arRequisicao2Test::headingsAreBoldAndCentred() {
  const auto layout = reporting::readLayout(Desenho(QStringLiteral("arRequisicao2")));
  QStringList bold;
  for (const reporting::SectionLayout& section : layout.sections) {
    for (const reporting::ElementLayout& element : section.elements) {
      if (element.font.bold) {
        QCOMPARE(element.align, reporting::Alignment::Center);
        bold << element.name;
      }
    }
  }
  QCOMPARE(bold.join(QLatin1Char(' ')), QStringLiteral("Label1 Label2 Label3 Label22"));
}

void arRequisicao2Test::oneFormFillsOnePage() {
  const Office office;
  addFullProcess(office);
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  QCOMPARE(document->pageCount(), 1);
  QCOMPARE(flaws(*document), QString());
  QCOMPARE(document->title(), QStringLiteral("Requisição de Adiantamento"));
  QCOMPARE(document->page(0).items(u"Image1").size(), 1);
}

void arRequisicao2Test::demonstrationProcessesArePrinted() {
  const Office office(test::Data::Demonstration);
  setOption(office, "0");
  const QStringList numbers =
      office.ask("SELECT group_concat(SEQ) FROM Requisicao").split(QLatin1Char(','));
  QVERIFY(numbers.size() > 50);
  for (const QString& number : numbers) {
    const auto document = pagesOf(kReq + number);
    QCOMPARE(document->pageCount(), 1);
    QCOMPARE(flaws(*document), QString());
    const QByteArray name =
        "SELECT NOME1 FROM Requisicao JOIN Tomador ON TOMADOR = ID WHERE SEQ = " +
        number.toLatin1();
    QCOMPARE(document->page(0).text(u"Field3"), office.ask(name.constData()));
    QCOMPARE(document->page(0).text(u"Field18"),
             QString(number).rightJustified(6, QLatin1Char('0')));
  }
}

void arRequisicao2Test::everyColumnHasItsField() {
  const Office office;
  addFullProcess(office);
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  const Page page = document->page(0);
  QCOMPARE(page.text(u"Field1"), QStringLiteral("20/11/2014"));
  QCOMPARE(page.text(u"Field2"), QStringLiteral("Secretaria de Educação e Cultura"));
  QCOMPARE(page.text(u"Field3"), QStringLiteral("João Müller Sant'Ana"));
  QCOMPARE(page.text(u"Field4"), QStringLiteral("MG-1.234.567"));
  QCOMPARE(page.text(u"Field5"), QStringLiteral("987.654.321-00"));
  QCOMPARE(page.text(u"Field6"), QStringLiteral("Motorista"));
  QCOMPARE(page.text(u"Field7"), QStringLiteral("1.234,56"));
  QCOMPARE(page.text(u"Field8"),
           QStringLiteral("(mil duzentos e trinta e quatro reais e cinquenta e seis centavos)"));
  QCOMPARE(page.text(u"Field9"), QStringLiteral("Lei n° 1.482, artigo 4°"));
  QCOMPARE(page.text(u"Field10"), QStringLiteral("Compra d'água"));
  QCOMPARE(page.text(u"Field14"), QStringLiteral("339030 - Consumo"));
  QCOMPARE(page.text(u"Field15"), QStringLiteral("128"));
  QCOMPARE(page.text(u"Field16"), QStringLiteral("Miúdas"));
  QCOMPARE(page.text(u"Field17"), QStringLiteral("30 dias"));
  QCOMPARE(page.text(u"Field19"), QStringLiteral("Despesas /"));
  QCOMPARE(page.text(u"Field25"), QStringLiteral("Inês d'Ávila Conceição"));
  QCOMPARE(page.text(u"Field26"), QStringLiteral("22.333.444-5"));
  QCOMPARE(page.text(u"Field27"), QStringLiteral("012.345.678-90"));
  QCOMPARE(page.text(u"Field28"), QStringLiteral("Secretária"));
  QCOMPARE(page.text(u"Field31"), QStringLiteral("Material de expediente"));
  QCOMPARE(page.text(u"Field18"), QStringLiteral("001214"));
}

// The rows of the stand-alone requisitions count from 1.
void arRequisicao2Test::standaloneRequisition() {
  const Office office;
  addFullProcess(office);
  office.run(
      "INSERT INTO ReqAvulso(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE, JUSTIFICATIVA, FICHA) "
      "VALUES (7, '2014-03-05 00:00:00', 1, 1, 500000, 1, 'Avulsa', '99')");
  setOption(office, "1");
  ScriptedDialogs dialogs;
  dialogs.expectBox(question(), Button::Yes);
  const auto document = pagesOf(kAvulso + QStringLiteral("7"));
  const Page page = document->page(0);
  QCOMPARE(flaws(*document), QString());
  QCOMPARE(page.text(u"Field10"), QStringLiteral("Avulsa"));
  QCOMPARE(page.text(u"Field8"), QStringLiteral("(cinquenta reais)"));
  QCOMPARE(page.text(u"Field3"), QStringLiteral("João Müller Sant'Ana"));
  QCOMPARE(page.text(u"Field18"), QStringLiteral("000007"));
  QCOMPARE(page.text(u"Field20"), QStringLiteral("0000"));
  QCOMPARE(page.text(u"Field21"), QStringLiteral("07"));
  QCOMPARE(page.text(u"Field23"), QStringLiteral("março"));
}

void arRequisicao2Test::cpfIsPrintedInItsForm_data() {
  QTest::addColumn<QString>("stored");
  QTest::addColumn<QString>("printed");
  QTest::newRow("digits") << "12345678901"
                          << "123.456.789-01";
  QTest::newRow("zeros in front") << "00045678901"
                                  << "000.456.789-01";
  QTest::newRow("in its form already") << "123.456.789-01"
                                       << "123.456.789-01";
  QTest::newRow("no number") << "isento"
                             << "isento";
}

void arRequisicao2Test::cpfIsPrintedInItsForm() {
  QFETCH(QString, stored);
  QFETCH(QString, printed);
  const Office office;
  addFullProcess(office);
  run(office, QStringLiteral("UPDATE Tomador SET CPF1 = '%1'").arg(stored));
  run(office, QStringLiteral("UPDATE Executor SET CPF = '%1'").arg(stored));
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  QCOMPARE(document->page(0).text(u"Field5"), printed);
  QCOMPARE(document->page(0).text(u"Field27"), printed);
}

void arRequisicao2Test::amountIsToldInWords_data() {
  QTest::addColumn<QString>("units");
  QTest::addColumn<QString>("amount");
  QTest::addColumn<QString>("words");
  QTest::newRow("nothing") << "0"
                           << "0,00"
                           << "(zero reais)";
  QTest::newRow("a centavo") << "100"
                             << "0,01"
                             << "(um centavo)";
  QTest::newRow("thousand") << "10000000"
                            << "1.000,00"
                            << "(mil reais)";
  QTest::newRow("longest of a usual advance")
      << "77787800"
      << "7.778,78"
      << "(sete mil setecentos e setenta e oito reais e setenta e oito centavos)";
  QTest::newRow("highest") << "9999999999900"
                           << "999.999.999,99"
                           << "(novecentos e noventa e nove milhões novecentos e noventa e nove "
                              "mil novecentos e noventa e nove reais e noventa e nove centavos)";
}

// The words go on in a second line where they must, and the form still fills one page.
void arRequisicao2Test::amountIsToldInWords() {
  QFETCH(QString, units);
  QFETCH(QString, amount);
  QFETCH(QString, words);
  const Office office;
  addFullProcess(office);
  run(office, QStringLiteral("UPDATE Requisicao SET VALOR = %1").arg(units));
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  QCOMPARE(document->page(0).text(u"Field7"), amount);
  QCOMPARE(document->page(0).text(u"Field8"), words);
  QCOMPARE(document->pageCount(), 1);
  QCOMPARE(flaws(*document), QString());
}

void arRequisicao2Test::nullsPrintEmpty() {
  const Office office;
  office.run("INSERT INTO Requisicao(SEQ) VALUES (1214)");
  ScriptedDialogs dialogs;
  dialogs.expectBox(question(), Button::Yes);
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  const Page page = document->page(0);
  for (const ElementRow& row : kTable) {
    const QString name = QString::fromLatin1(row.element);
    const bool fixed = !row.content.text.isEmpty() || name == QLatin1String("Image1") ||
                       name == QLatin1String("Field8");
    const bool numbered = name == QLatin1String("Field18") || name == QLatin1String("Field20") ||
                          name == QLatin1String("Field21");
    if (!fixed && !numbered) {
      QVERIFY2(page.text(name).isEmpty(), row.element);
    }
  }
  QCOMPARE(page.text(u"Field8"), QStringLiteral("()"));
  QCOMPARE(page.text(u"Field20"), QStringLiteral("0012"));
  QCOMPARE(flaws(*document), QString());
}

void arRequisicao2Test::yesFillsNumberAndDateIn() {
  const Office office;
  addFullProcess(office);
  setOption(office, "1");
  ScriptedDialogs dialogs;
  dialogs.expectBox(question(), Button::Yes);
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  const Page page = document->page(0);
  QCOMPARE(page.text(u"Field20"), QStringLiteral("0012"));
  QCOMPARE(page.text(u"Field21"), QStringLiteral("14"));
  QCOMPARE(page.text(u"Field22"), QStringLiteral("20"));
  QCOMPARE(page.text(u"Field23"), QStringLiteral("novembro"));
  QCOMPARE(page.text(u"Field24"), QStringLiteral("2014"));
  QCOMPARE(flaws(*document), QString());
}

void arRequisicao2Test::noLeavesThemBlank() {
  const Office office;
  addFullProcess(office);
  setOption(office, "1");
  ScriptedDialogs dialogs;
  dialogs.expectBox(question(), Button::No);
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  for (const QString& field : kOverprint) {
    QVERIFY2(document->page(0).text(field).isEmpty(), qPrintable(field));
  }
  QCOMPARE(document->page(0).text(u"Field18"), QStringLiteral("001214"));
}

void arRequisicao2Test::otherSettingsAskNothing_data() {
  QTest::addColumn<QByteArray>("value");
  QTest::newRow("no") << QByteArray("0");
  QTest::newRow("empty") << QByteArray();
  QTest::newRow("other") << QByteArray("2");
  QTest::newRow("word") << QByteArray("sim");
}

// Nobody is asked, and the five fields keep what they have.
void arRequisicao2Test::otherSettingsAskNothing() {
  QFETCH(QByteArray, value);
  const Office office;
  addFullProcess(office);
  setOption(office, value.constData());
  const ScriptedDialogs dialogs;
  const auto report = arRequisicao2(kReq + QStringLiteral("1214"));
  report->build();
  for (const QString& field : kOverprint) {
    QVERIFY2(report->document()->page(0).text(field).isEmpty(), qPrintable(field));
    report->setText(field, QStringLiteral("7"));
  }
  report->start();
  report->build();
  for (const QString& field : kOverprint) {
    QCOMPARE(report->document()->page(0).text(field), QStringLiteral("7"));
  }
}

void arRequisicao2Test::fillsInOverTheBlanks_data() {
  QTest::addColumn<QByteArray>("field");
  QTest::addColumn<QByteArray>("label");
  QTest::addColumn<int>("blank");
  QTest::newRow("number") << QByteArray("Field20") << QByteArray("Label27") << 0;
  QTest::newRow("its year") << QByteArray("Field21") << QByteArray("Label27") << 1;
  QTest::newRow("day") << QByteArray("Field22") << QByteArray("Label24") << 0;
  QTest::newRow("month") << QByteArray("Field23") << QByteArray("Label24") << 1;
  QTest::newRow("year") << QByteArray("Field24") << QByteArray("Label24") << 2;
}

// Between the ends of the blank, and a little above the rest of its line, as if written on it.
void arRequisicao2Test::fillsInOverTheBlanks() {
  QFETCH(QByteArray, field);
  QFETCH(QByteArray, label);
  QFETCH(int, blank);
  const Office office;
  addFullProcess(office);
  setOption(office, "1");
  ScriptedDialogs dialogs;
  dialogs.expectBox(question(), Button::Yes);
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  const QRectF letters = lettersOf(document->page(0), field.constData());
  const QRectF line = blankOf(document->page(0), label.constData(), blank);
  QVERIFY(letters.width() > 0 && line.width() > 0);
  QVERIFY(letters.left() > line.left() && letters.right() < line.right());
  const double above = line.bottom() - letters.bottom();
  QVERIFY2(above >= 0 && above < 80, qPrintable(QString::number(above)));
}

void arRequisicao2Test::signaturesHaveTheirNames() {
  const Office office;
  addFullProcess(office);
  const QString finance = QStringLiteral("Financas");
  Grava_ini(finance, QStringLiteral("nome"), QStringLiteral("Conceição Prado"), office.config());
  Grava_ini(finance, QStringLiteral("cargo"), QStringLiteral("Secretária de Finanças"),
            office.config());
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  const Page page = document->page(0);
  QCOMPARE(page.text(u"Field29"), QStringLiteral("Conceição Prado"));
  QCOMPARE(page.text(u"Field32"), QStringLiteral("Secretária de Finanças"));
  QCOMPARE(page.text(u"Field33"), QStringLiteral("João Müller Sant'Ana"));
  QCOMPARE(page.text(u"Field34"), QStringLiteral("Inês d'Ávila Conceição"));
}

// 80 letters, in capitals, in both names: on further lines or in a smaller type, but whole.
void arRequisicao2Test::longNamesAreWhole() {
  const Office office;
  addFullProcess(office);
  const QString name = QStringLiteral(
      "MARIA APARECIDA DOS SANTOS OLIVEIRA DE ALBUQUERQUE CAVALCANTI FIGUEIREDO E SOUZA");
  QCOMPARE(name.size(), 80);
  run(office, QStringLiteral("UPDATE Tomador SET NOME1 = '%1', CARGO = '%1';"
                             "UPDATE Executor SET NOME = '%1', FUNCAO = '%1';"
                             "UPDATE Orgao SET ORGAO = '%1'; UPDATE Tipos SET TIPO = '%1'")
                  .arg(name));
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  for (const QStringView field : {u"Field2", u"Field3", u"Field6", u"Field25", u"Field28",
                                  u"Field16", u"Field33", u"Field34"}) {
    QCOMPARE(document->page(0).text(field), name);
  }
  QCOMPARE(flaws(*document), QString());
}

// The legal text and the materials grow, and all that stands below them, lines too, moves down.
void arRequisicao2Test::longTextsMoveWhatFollows() {
  const Office office;
  addFullProcess(office);
  const auto usual = pagesOf(kReq + QStringLiteral("1214"));
  run(office, QStringLiteral("UPDATE Tipos SET LEI = '%1', MATERIAIS = '%1'")
                  .arg(textOfLength(600).replace(QLatin1Char('\''), QLatin1String("''"))));
  const auto grown = pagesOf(kReq + QStringLiteral("1214"));
  const auto top = [](const Document& document, QStringView element) {
    const QList<PlacedItem> items = document.page(0).items(element);
    return items.isEmpty() ? -1 : items.first().rect.y();
  };
  const int byLaw = top(*grown, u"Field31") - top(*usual, u"Field31");
  const int byBoth = top(*grown, u"Label14") - top(*usual, u"Label14");
  QVERIFY(byLaw > 200 && byBoth > byLaw + 200);
  for (const QStringView below : {u"Line4", u"Label15", u"Field10"}) {
    QCOMPARE(top(*grown, below) - top(*usual, below), byBoth);
  }
  QCOMPARE(top(*grown, u"Line3"), top(*usual, u"Line3"));
  QCOMPARE(grown->page(0).text(u"Field9"), textOfLength(600));
  QCOMPARE(grown->page(0).text(u"Field31"), textOfLength(600));
  QCOMPARE(flaws(*grown), QString());
}

void arRequisicao2Test::longJustificationGoesOn_data() {
  QTest::addColumn<int>("letters");
  QTest::newRow("what stands below it moves on") << 2000;
  QTest::newRow("it goes on itself") << 3000;
}

void arRequisicao2Test::longJustificationGoesOn() {
  QFETCH(int, letters);
  const Office office;
  addFullProcess(office);
  setJustification(office, letters);
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  QCOMPARE(document->pageCount(), 2);
  QCOMPARE(flaws(*document), QString());
  QStringList parts;
  for (const Page& page : document->pages()) {
    QCOMPARE(page.items(u"Label3").size(), 1);
    QCOMPARE(page.items(u"Label27").size(), 1);
    for (const PlacedItem& part : page.items(u"Field10")) {
      parts << part.text;
      QVERIFY(part.rect.y() + part.rect.height() < page.items(u"Label20").first().rect.y());
    }
  }
  QCOMPARE(parts.size(), letters == 2000 ? 1 : 2);
  QCOMPARE(parts.join(QLatin1Char(' ')).trimmed(), textOfLength(letters).trimmed());
  const Page last = document->page(1);
  QCOMPARE(last.text(u"Field15"), QStringLiteral("128"));
  QVERIFY(document->page(0).items(u"Field15").isEmpty());
  for (const PlacedItem& rest : last.items(u"Field10")) {
    QVERIFY(last.items(u"Line5").first().rect.y() >= rest.rect.y() + rest.rect.height());
  }
}

void arRequisicao2Test::everyPageAsksAgain() {
  const Office office;
  addFullProcess(office);
  setJustification(office, 2000);
  setOption(office, "1");
  ScriptedDialogs dialogs;
  dialogs.expectBox(question(), Button::Yes);
  dialogs.expectBox(question(), Button::No);
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  QCOMPARE(document->pageCount(), 2);
  QCOMPARE(document->page(0).text(u"Field20"), QStringLiteral("0012"));
  QCOMPARE(document->page(0).text(u"Field24"), QStringLiteral("2014"));
  for (const QString& field : kOverprint) {
    QVERIFY2(document->page(1).text(field).isEmpty(), qPrintable(field));
  }
  QCOMPARE(document->page(1).text(u"Field33"), QStringLiteral("João Müller Sant'Ana"));
}

void arRequisicao2Test::withoutARowOnlyHeadings() {
  const Office office;
  setOption(office, "0");
  const auto document = pagesOf(kReq + QStringLiteral("99914"));
  QCOMPARE(document->pageCount(), 1);
  QCOMPARE(document->page(0).text(u"Label3"), QStringLiteral("REQUISIÇÃO DE ADIANTAMENTO"));
  QVERIFY(document->page(0).items(u"Label4").isEmpty());
  QVERIFY(document->page(0).text(u"Field18").isEmpty());
}

void arRequisicao2Test::pdfReadsAsThePage() {
  const Office office;
  addFullProcess(office);
  const auto document = pagesOf(kReq + QStringLiteral("1214"));
  const QString pdf = office.file(QStringLiteral("r.pdf"));
  reporting::exportPdf(*document, pdf);
  QCOMPARE(test::firstOutOfOrder(
               test::textsOfPdf(pdf),
               {QStringLiteral("PREFEITURA MUNICIPAL DE BRUMALESTE"),
                QStringLiteral("ESTADO DE SÃO PAULO"),
                QStringLiteral("REQUISIÇÃO DE ADIANTAMENTO"),
                QStringLiteral("Data da Solicitação.....: 20/11/2014"),
                QStringLiteral("Orgão Executor..........: Secretaria de Educação e Cultura"),
                QStringLiteral("Responsável pelo Recurso: João Müller Sant'Ana"),
                QStringLiteral("Documento...............: RG: MG-1.234.567 CPF: 987.654.321-00"),
                QStringLiteral("Cargo ou Função.........: Motorista"),
                QStringLiteral("Nome do Ordenador.......: Inês d'Ávila Conceição"),
                QStringLiteral("RG: 22.333.444-5 CPF: 012.345.678-90"),
                QStringLiteral("Cargo ou Função.........: Secretária"),
                QStringLiteral("Valor Requisitado.......: 1.234,56 (mil duzentos e trinta"),
                QStringLiteral("Finalidade do Adiantamento: Despesas / Miúdas"),
                QStringLiteral("Lei n° 1.482, artigo 4°"),
                QStringLiteral("Material de expediente"),
                QStringLiteral("Prazo de Aplicação: 30 dias"),
                QStringLiteral("Justificativa:"),
                QStringLiteral("Compra d'água"),
                QStringLiteral("abaixo especificada:"),
                QStringLiteral("* Categoria Econômica: 339030 - Consumo"),
                QStringLiteral("* Ficha (Dotação)....: 128"),
                QStringLiteral("Assinatura do Responsável Assinatura do Ordenador"),
                QStringLiteral("João Müller Sant'Ana Inês d'Ávila Conceição"),
                QStringLiteral("AUTORIZAÇÃO DE ABERTURA DO ADIANTAMENTO"),
                QStringLiteral("inexistência de atos pendentes"),
                QStringLiteral("Brumaleste,"),
                QStringLiteral("001214 Nº DO PROCESSO: _________/____")}),
           QString());
}

void arRequisicao2Test::isShownOnRequest() {
  const Office office;
  addFullProcess(office);
  setOption(office, "1");
  ScriptedDialogs dialogs;
  dialogs.expectBox(question(), Button::Yes);
  registra_arRequisicao2();
  imprime({.relatorio = Relatorio::Requisicao2,
           .comando = kReq + QStringLiteral("1214"),
           .exibe = true,
           .campos = {}});
  QCOMPARE(previews().size(), 1);
  ReportPreview* const preview = previews().first();
  QTRY_VERIFY(preview->document()->isComplete());
  QVERIFY(preview->isVisible());
  QVERIFY(preview->windowTitle().contains(QStringLiteral("Requisição de Adiantamento")));
  QCOMPARE(preview->document()->page(0).text(u"Field20"), QStringLiteral("0012"));
  preview->close();
  QTRY_VERIFY(previews().isEmpty());
  registra_impressao(Relatorio::Requisicao2, {});
}

void arRequisicao2Test::isPrintedOnRequest() {
  const Office office;
  addFullProcess(office);
  const QString pdf = office.file(QStringLiteral("impressa.pdf"));
  ScriptedDialogs dialogs;
  dialogs.expectPrinter(pdf);
  registra_arRequisicao2();
  imprime({.relatorio = Relatorio::Requisicao2,
           .comando = kReq + QStringLiteral("1214"),
           .exibe = false,
           .campos = {}});
  QVERIFY(previews().isEmpty());
  QVERIFY(test::textsOfPdf(pdf).contains(QStringLiteral("Responsável pelo Recurso: João Müller")));
  registra_impressao(Relatorio::Requisicao2, {});
}

// A statement that cannot be opened fails at the caller, before a window is there.
void arRequisicao2Test::failuresAreTold() {
  const Office office;
  ScriptedDialogs dialogs;
  dialogs.expectBox(test::boxes::internalError(ErrorNumber::UnknownTable, kFuncaoImprimir,
                                               QStringLiteral("Sel_Inexistente")));
  registra_arRequisicao2();
  Sob_trava(kFuncaoImprimir, [] {
    imprime({.relatorio = Relatorio::Requisicao2,
             .comando = QStringLiteral("Select * from Sel_Inexistente"),
             .exibe = true,
             .campos = {}});
  });
  QVERIFY(previews().isEmpty());
  registra_impressao(Relatorio::Requisicao2, {});
}

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::arRequisicao2Test)
#include "arRequisicao2_test.moc"
