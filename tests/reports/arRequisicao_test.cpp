// The collection slip: its design, its three copies, its bar code, and how it leaves the program.
#include "reports/arRequisicao.h"

#include <array>
#include <cstdlib>
#include <memory>

#include "foundation/Textos.h"
#include "platform/controls/OpenForms.h"
#include "platform/reporting/LayoutReader.h"
#include "platform/reporting/Output.h"
#include "platform/reporting/ReportPreview.h"
#include "records/Impressao.h"
#include "reports/Saida.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/reports/LayoutTable.h"
#include "tests/support/PdfTools.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {

using reporting::Document;
using reporting::ElementKind;
using reporting::ElementLayout;
using reporting::Page;
using reporting::PlacedItem;
using reporting::ReportPreview;
using test::ElementRow;
using test::ScriptedDialogs;
using test::text;

namespace {

const QList<ElementRow> kFirstCopy{
    {"Detail", "Field53", {8031, 3496, 2268, 378}, {}, "#,##0.00"},
    {"Detail", "Label84", {8031, 3307, 2268, 189}, text("TOTAL:")},
    {"Detail", "Label85", {8031, 2787, 2268, 237}, text("JUROS+MULTA:")},
    {"Detail", "Label86", {8031, 2315, 2268, 189}, text("SUBTOTAL:")},
    {"Detail", "Label87", {8031, 661, 2268, 237}, text("VENCIMENTO:")},
    {"Detail", "Label88", {8031, 1323, 2268, 189}, text("EMPENHO:")},
    {"Detail", "Label89", {8031, 1795, 2268, 236}, text("ORDEM PAGTO:")},
    {"Detail", "Label90", {0, 2315, 2976, 189}, text("DESCRIÇÃO:")},
    {"Detail", "Label91", {0, 1323, 2976, 189}, text("CONTRIBUINTE:")},
    {"Detail", "Label92", {0, 1795, 2976, 236}, text("ENDEREÇO:")},
    {"Detail", "Label93", {2268, 378, 5811, 283}, text("PREFEITURA DO MUNICIPIO DE BRUMALESTE")},
    {"Detail",
     "Label94",
     {213, 2906, 5315, 283},
     text("Quantia não utilizada em adiantamento de:")},
    {"Detail", "Label95", {0, 756, 2976, 189}, text("RECOLHIMENTO REFERENTE A:")},
    {"Detail", "Label96", {0, 945, 8031, 378}, text("DEVOLUÇÃO DE ADIANTAMENTO")},
    {"Detail", "Field54", {0, 1512, 8031, 283}},
    {"Detail", "Field55", {0, 2031, 8031, 284}},
    {"Detail", "Label97", {2268, 94, 5811, 284}, text("GUIA DE ARRECADAÇÃO")},
    {"Detail", "Label98", {3827, 3874, 2126, 189}, text("AUTENTICAÇÃO MECÂNICA")},
    {"Detail", "Field56", {0, 1512, 7937, 283}},
    {"Detail", "Field57", {0, 2031, 7937, 284}},
    {"Detail", "Field58", {236, 3165, 4583, 284}},
    {"Detail", "Field59", {8079, 945, 2220, 283}},
    {"Detail", "Field60", {8079, 1512, 2220, 283}},
    {"Detail", "Field61", {8079, 2031, 2220, 284}},
    {"Detail", "Field62", {8079, 2504, 2220, 283}, {}, "#,##0.00"},
    {"Detail", "Field63", {8079, 3024, 2220, 283}, text("0,00"), "0,00"}};

const QList<ElementRow> kOnce{
    {"Detail", "Label99", {47, 3921, 1370, 236}, text("Via Empenho")},
    {"Detail",
     "Cut1",
     {0, 5102, 10346, 236},
     text("Recorte aqui ....................................................................."
          "................")},
    {"Detail",
     "Cut2",
     {0, 10346, 10346, 236},
     text("Recorte aqui ....................................................................."
          "................")},
    {"Detail", "Barcode1", {0, 14669, 7795, 567}}};

// How much lower than the first the copies stand.
constexpr int kSecond = 5434;
constexpr int kThird = 10678;

// What a field of the first copy is called in the second and in the third.
struct Repeated {
  const char* first;
  const char* second;
  const char* third;
};
constexpr std::array kRepeated{
    Repeated{"Field56", "Field34", "Field45"}, Repeated{"Field57", "Field35", "Field46"},
    Repeated{"Field58", "Field36", "Field47"}, Repeated{"Field59", "Field37", "Field48"},
    Repeated{"Field60", "Field38", "Field49"}, Repeated{"Field61", "Field39", "Field50"},
    Repeated{"Field62", "Field40", "Field51"}, Repeated{"Field63", "Field41", "Field52"},
    Repeated{"Field53", "Field29", "Field42"}};

// The due date of the samples, and the slip's bar code for an amount in centavos.
const QString kDue = QStringLiteral("03/12/2014");

QString barCode(const QString& centavos) {
  return Monta_barras(QStringLiteral("000"), QStringLiteral("9"), centavos, kDue,
                      QStringLiteral("12"), QStringLiteral("1"));
}

QMap<QString, QString> sample() {
  return {{QStringLiteral("Field56"), QStringLiteral("João Müller Sant'Ana")},
          {QStringLiteral("Field57"), QStringLiteral("Secretaria de Educação e Cultura")},
          {QStringLiteral("Field58"), QStringLiteral("Viagens")},
          {QStringLiteral("Field59"), kDue},
          {QStringLiteral("Field60"), QStringLiteral("00500/14")},
          {QStringLiteral("Field61"), QStringLiteral("77")},
          {QStringLiteral("Field62"), QStringLiteral("1.153,40")},
          {QStringLiteral("Barcode1"), barCode(QStringLiteral("115340"))}};
}

QMap<QString, QString> sampleWith(const char* field, const QString& text) {
  QMap<QString, QString> fields = sample();
  fields.insert(QString::fromLatin1(field), text);
  return fields;
}

std::shared_ptr<const Document> slip(const QMap<QString, QString>& fields) {
  const auto report = arRequisicao(fields);
  report->build();
  return report->document();
}

QString flaws(const Document& document) {
  QString found;
  for (const Page& page : document.pages()) {
    found += test::collisions(page) + test::cutTexts(page) + test::offPaper(page);
  }
  return found;
}

// Elements of that kind, name by name, at the place of the first copy moved down.
QStringList placesOf(const reporting::ReportLayout& layout, ElementKind kind, int from, int to) {
  QStringList places;
  for (const ElementLayout& element : layout.sections.front().elements) {
    const int top = element.place.y();
    if (element.kind == kind && top >= from && top < to) {
      places << test::described(element.place.translated(0, -from)) + QLatin1Char(' ') +
                    element.text;
    }
  }
  places.sort();
  return places;
}

}  // namespace

class arRequisicaoTest : public QObject {
  Q_OBJECT

 private slots:
  void everyElementHasItsPlace();
  void copiesDifferByPlaceOnly();
  void copiesAreFramed();
  void nothingElseIsWritten();
  void fillsOnePage();
  void copiesRepeatTheFirst();
  void totalsAreTheSubtotal_data();
  void totalsAreTheSubtotal();
  void longTextsAreWhole();
  void unknownFieldIs9();
  void barCodeHasItsQuietZone();
  void readersReadTheBarCode_data();
  void readersReadTheBarCode();
  void withoutDigitsThereAreNoBars();
  void pdfReadsAsThePage();
  void isShownOnRequest();
  void isPrintedOnRequest();
  void failuresAreTold();
};

void arRequisicaoTest::everyElementHasItsPlace() {
  const auto layout = reporting::readLayout(Desenho(QStringLiteral("arRequisicao")));
  QCOMPARE(test::layoutDifferences(layout, kFirstCopy + kOnce), QString());
  QCOMPARE(layout.sections.size(), 1U);
  QCOMPARE(layout.sections.front().name, QStringLiteral("Detail"));
  QCOMPARE(layout.printWidth, 10346);
  QCOMPARE(layout.paper, QSize(11906, 16838));
}

// Labels, fields, crest and lines of the copies are the same, but for the word of whose copy it is.
void arRequisicaoTest::copiesDifferByPlaceOnly() {
  const auto layout = reporting::readLayout(Desenho(QStringLiteral("arRequisicao")));
  QList<ElementRow> fields;
  for (const ElementRow& row : kFirstCopy) {
    for (const Repeated& field : kRepeated) {
      if (qstrcmp(row.element, field.first) == 0) {
        fields << ElementRow{"Detail", field.second, row.place.translated(0, kSecond), row.content,
                             row.format};
        fields << ElementRow{"Detail", field.third, row.place.translated(0, kThird), row.content,
                             row.format};
      }
    }
  }
  QCOMPARE(fields.size(), 2 * qsizetype(kRepeated.size()));
  QCOMPARE(test::layoutDifferences(layout, fields), QString());
  for (const ElementKind kind : {ElementKind::Label, ElementKind::Field, ElementKind::Image,
                                 ElementKind::Line, ElementKind::Shape}) {
    QStringList first = placesOf(layout, kind, 0, 5102);
    QStringList second = placesOf(layout, kind, kSecond, 10346);
    const QStringList third = placesOf(layout, kind, kThird, 16838);
    first.removeAll(QStringLiteral("47,3921 1370x236 Via Empenho"));
    second.removeAll(QStringLiteral("47,3873 1843x236 Via Contribuinte"));
    QVERIFY(!first.isEmpty());
    QCOMPARE(second, first);
    QCOMPARE(third, first);
  }
}

void arRequisicaoTest::copiesAreFramed() {
  const auto layout = reporting::readLayout(Desenho(QStringLiteral("arRequisicao")));
  for (const int top : {0, kSecond, kThird}) {
    int frames = 0;
    int crests = 0;
    for (const ElementLayout& element : layout.sections.front().elements) {
      const QRect place = element.place.translated(0, -top);
      frames += element.kind == ElementKind::Shape && element.lineWeight > 0 && place.y() >= 0 &&
                        place.y() < 5000
                    ? 1
                    : 0;
      crests += element.kind == ElementKind::Image && place.x() == 142 && place.width() == 425 &&
                        place.y() > 0 && place.y() < 661
                    ? 1
                    : 0;
    }
    QCOMPARE(frames, 2);
    QCOMPARE(crests, 1);
  }
  // The texts begin at the left margin, so the frame stands in it.
  const auto document = slip(sample());
  const Page page = document->page(0);
  const QRect frame = page.items(u"Frame").first().rect;
  const QRect text = page.items(u"Field56").first().rect;
  QVERIFY(frame.x() < text.x() && frame.x() > 0);
  QCOMPARE(frame.x() + frame.width() + frame.x(), page.size().width());
}

void arRequisicaoTest::nothingElseIsWritten() {
  const auto document = slip(sample());
  QStringList texts;
  for (const PlacedItem& item : document->page(0).items()) {
    if (item.kind == reporting::ItemKind::Text) {
      texts << item.text;
    }
  }
  // Fifteen labels and nine values a copy, two words of whose copy it is, two lines to cut along.
  QCOMPARE(texts.size(), 3 * (15 + 9) + 2 + 2);
  QCOMPARE(texts.count(QStringLiteral("Via Empenho")), 1);
  QCOMPARE(texts.count(QStringLiteral("Via Contribuinte")), 1);
  QCOMPARE(texts.count(QStringLiteral("Recorte aqui ") + QString(85, QLatin1Char('.'))), 2);
}

void arRequisicaoTest::fillsOnePage() {
  const auto document = slip(sample());
  QCOMPARE(document->pageCount(), 1);
  QCOMPARE(flaws(*document), QString());
  QCOMPARE(document->title(), QStringLiteral("Guia de Arrecadação"));
  const Page page = document->page(0);
  QCOMPARE(page.items(u"Barcode1").size(), 1);
  // The same paper above and below, to half a centimetre.
  int top = page.size().height();
  int bottom = 0;
  for (const PlacedItem& item : page.items()) {
    top = std::min(top, item.rect.y());
    bottom = std::max(bottom, item.rect.y() + item.rect.height());
  }
  QVERIFY(top > 400 && std::abs(top - (page.size().height() - bottom)) < 284);
}

void arRequisicaoTest::copiesRepeatTheFirst() {
  const QMap<QString, QString> fields = sample();
  const auto document = slip(fields);
  const Page page = document->page(0);
  for (const Repeated& field : kRepeated) {
    const QString first = page.text(QString::fromLatin1(field.first));
    QVERIFY2(!first.isEmpty(), field.first);
    QCOMPARE(page.text(QString::fromLatin1(field.second)), first);
    QCOMPARE(page.text(QString::fromLatin1(field.third)), first);
  }
  for (auto field = fields.begin(); field != fields.end(); ++field) {
    QCOMPARE(page.text(field.key()), field.value());
  }
  QCOMPARE(page.text(u"Field63"), QStringLiteral("0,00"));
}

void arRequisicaoTest::totalsAreTheSubtotal_data() {
  QTest::addColumn<QString>("amount");
  QTest::addColumn<QString>("printed");
  QTest::newRow("formatted") << "1.153,40"
                             << "1.153,40";
  QTest::newRow("plain") << "1153,4"
                         << "1.153,40";
  QTest::newRow("nothing left") << "0,00"
                                << "0,00";
  QTest::newRow("one centavo") << ",01"
                               << "0,01";
  QTest::newRow("highest") << "999999999,99"
                           << "999.999.999,99";
  QTest::newRow("blank") << ""
                         << "";
}

void arRequisicaoTest::totalsAreTheSubtotal() {
  QFETCH(QString, amount);
  QFETCH(QString, printed);
  const auto document = slip(sampleWith("Field62", amount));
  const Page page = document->page(0);
  for (const QStringView field :
       {u"Field62", u"Field40", u"Field51", u"Field53", u"Field29", u"Field42"}) {
    QCOMPARE(page.text(field), printed);
  }
  for (const QStringView field : {u"Field63", u"Field41", u"Field52"}) {
    QCOMPARE(page.text(field), QStringLiteral("0,00"));
  }
  QCOMPARE(flaws(*document), QString());
}

void arRequisicaoTest::longTextsAreWhole() {
  const QString name = QStringLiteral(
      "MARIA APARECIDA DOS SANTOS OLIVEIRA DE ALBUQUERQUE CAVALCANTI FIGUEIREDO E SOUZA");
  QMap<QString, QString> fields = sampleWith("Field56", name);
  fields.insert(QStringLiteral("Field57"), name);
  const QString type = QStringLiteral("DESPESAS COM CURSOS, CONGRESSOS E VIAGENS A SERVIÇO");
  fields.insert(QStringLiteral("Field58"), type);
  const auto document = slip(fields);
  for (const QStringView field : {u"Field56", u"Field35", u"Field46"}) {
    QCOMPARE(document->page(0).text(field), name);
  }
  QCOMPARE(document->page(0).text(u"Field47"), type);
  QCOMPARE(flaws(*document), QString());
}

void arRequisicaoTest::unknownFieldIs9() {
  QCOMPARE(test::errorOf([] { arRequisicao(sampleWith("Field99", QStringLiteral("x"))); }), 9);
}

// The bars keep their quiet zone within their box: the box must be free of letters and lines.
void arRequisicaoTest::barCodeHasItsQuietZone() {
  const auto document = slip(sample());
  const Page page = document->page(0);
  const QRect zone = page.items(u"Barcode1").first().rect;
  QCOMPARE(zone.size(), QSize(7795, 567));
  for (const reporting::StoredItem& item : page.stored()) {
    const reporting::ItemStyle& style = document->style(item.style);
    for (const QRectF& letters : test::linesOnPaper(page, item)) {
      QVERIFY2(!letters.intersects(QRectF(zone)), qPrintable(style.element));
    }
    const bool upright = style.kind == reporting::ItemKind::Line && item.width == 0;
    if (upright) {
      QVERIFY2(!item.rect().adjusted(-5, 0, 5, 0).intersects(zone), qPrintable(style.element));
    }
    if (style.kind == reporting::ItemKind::Area) {
      const bool around = item.rect().adjusted(5, 5, -5, -5).contains(zone);
      QVERIFY2(around || !item.rect().intersects(zone), qPrintable(style.element));
    }
  }
}

void arRequisicaoTest::readersReadTheBarCode_data() {
  QTest::addColumn<QString>("centavos");
  QTest::addColumn<int>("resolution");
  for (const int resolution : {150, 300}) {
    QTest::addRow("usual at %d", resolution) << "115340" << resolution;
    QTest::addRow("highest at %d", resolution) << "9999999999" << resolution;
    QTest::addRow("lowest at %d", resolution) << "1" << resolution;
  }
}

void arRequisicaoTest::readersReadTheBarCode() {
  QFETCH(QString, centavos);
  QFETCH(int, resolution);
  const QString digits = barCode(centavos);
  QCOMPARE(digits.size(), 44);
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("guia.pdf"));
  reporting::exportPdf(*slip(sampleWith("Barcode1", digits)), pdf);
  QCOMPARE(test::barCodeOfPdf(pdf, resolution), digits);
}

void arRequisicaoTest::withoutDigitsThereAreNoBars() {
  const auto document = slip(sampleWith("Barcode1", {}));
  QVERIFY(document->page(0).items(u"Barcode1").isEmpty());
}

void arRequisicaoTest::pdfReadsAsThePage() {
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("guia.pdf"));
  reporting::exportPdf(*slip(sample()), pdf);
  const QStringList copy{QStringLiteral("GUIA DE ARRECADAÇÃO"),
                         QStringLiteral("PREFEITURA DO MUNICIPIO DE BRUMALESTE"),
                         QStringLiteral("RECOLHIMENTO REFERENTE A:"),
                         QStringLiteral("DEVOLUÇÃO DE ADIANTAMENTO"),
                         QStringLiteral("CONTRIBUINTE: EMPENHO:"),
                         QStringLiteral("João Müller Sant'Ana"),
                         QStringLiteral("00500/14"),
                         QStringLiteral("ENDEREÇO: ORDEM PAGTO:"),
                         QStringLiteral("Secretaria de Educação e Cultura"),
                         QStringLiteral("77"),
                         QStringLiteral("DESCRIÇÃO: SUBTOTAL:"),
                         QStringLiteral("1.153,40"),
                         QStringLiteral("Quantia não utilizada em adiantamento de:"),
                         QStringLiteral("1.153,40"),
                         QStringLiteral("AUTENTICAÇÃO MECÂNICA")};
  const QString cut = QStringLiteral("Recorte aqui ....");
  const QStringList page =
      copy + QStringList{QStringLiteral("Via Empenho"), cut} + copy + QStringList{cut} + copy;
  QCOMPARE(test::firstOutOfOrder(test::textsOfPdf(pdf), page), QString());
}

void arRequisicaoTest::isShownOnRequest() {
  registra_arRequisicao();
  imprime({.relatorio = Relatorio::Guia, .comando = {}, .exibe = true, .campos = sample()});
  auto* const preview = qobject_cast<ReportPreview*>(OpenForms::all().value(0));
  QVERIFY(preview != nullptr);
  QTRY_VERIFY(preview->document()->isComplete());
  QVERIFY(preview->isVisible());
  QCOMPARE(preview->document()->page(0).text(u"Field42"), QStringLiteral("1.153,40"));
  preview->close();
  QTRY_VERIFY(OpenForms::all().isEmpty());
  registra_impressao(Relatorio::Guia, {});
}

void arRequisicaoTest::isPrintedOnRequest() {
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("guia.pdf"));
  ScriptedDialogs dialogs;
  dialogs.expectPrinter(pdf);
  registra_arRequisicao();
  imprime({.relatorio = Relatorio::Guia, .comando = {}, .exibe = false, .campos = sample()});
  QVERIFY(OpenForms::all().isEmpty());
  QCOMPARE(test::barCodeOfPdf(pdf, 300), barCode(QStringLiteral("115340")));
  registra_impressao(Relatorio::Guia, {});
}

// Digits that are no bar code are found while the page is built: the box comes up over the preview.
void arRequisicaoTest::failuresAreTold() {
  ScriptedDialogs dialogs;
  Box told = test::boxes::internalError(ErrorNumber::InvalidProcedureCall, kFuncaoImprimir);
  told.text = QStringLiteral(
      "Houve um erro interno:\n\nNúmero do erro:\n5\nDescrição :\nO código de barras precisa de "
      "uma quantidade par de algarismos [123].\nOrigem :\nQuartela / Função imprimir");
  dialogs.expectBox(told);
  registra_arRequisicao();
  imprime({.relatorio = Relatorio::Guia,
           .comando = {},
           .exibe = true,
           .campos = sampleWith("Barcode1", QStringLiteral("123"))});
  QTRY_VERIFY(dialogs.satisfied());
  OpenForms::all().value(0)->close();
  QTRY_VERIFY(OpenForms::all().isEmpty());
  registra_impressao(Relatorio::Guia, {});
}

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::arRequisicaoTest)
#include "arRequisicao_test.moc"
