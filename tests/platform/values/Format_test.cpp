#include "platform/values/Format.h"

#include <limits>

#include "platform/values/RuntimeError.h"
#include "tests/support/TestMain.h"

using namespace quartela;

Q_DECLARE_METATYPE(quartela::Value)

namespace {

Money cents(std::int64_t amount) {
  return Money::fromCents(amount);
}

Money units(std::int64_t amount) {
  return Money::fromUnits(amount);
}

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

void columns() {
  QTest::addColumn<Value>("value");
  QTest::addColumn<QString>("format");
  QTest::addColumn<QString>("text");
}

// One row each, named after format and result.
void rows(const char* format, std::initializer_list<std::pair<Value, const char*>> cells) {
  int number = 0;
  for (const auto& [value, text] : cells) {
    QTest::addRow("%s, %d: %s", format, ++number, text)
        << value << QString::fromUtf8(format) << QString::fromUtf8(text);
  }
}

}  // namespace

class FormatTest : public QObject {
  Q_OBJECT

 private slots:
  void formatsAmounts_data();
  void formatsAmounts() { check(); }
  void formatsNumbersWithFixedDigits_data();
  void formatsNumbersWithFixedDigits() { check(); }
  void formatsDates_data();
  void formatsDates() { check(); }
  void passesOthersUnchanged_data();
  void passesOthersUnchanged() { check(); }
  void servesTheRestOfTheLanguage_data();
  void servesTheRestOfTheLanguage() { check(); }
  void namesEveryMonth();
  void givesNothingForNull();
  void refusesWhatIsNotFinite();
  void keepsFormatsApart();

 private:
  static void check();
};

void FormatTest::check() {
  QFETCH(Value, value);
  QFETCH(QString, format);
  QTEST(Format(value, format), "text");
}

void FormatTest::formatsAmounts_data() {
  columns();
  rows("#,##0.00",
       {{cents(0), "0,00"},
        {cents(1), "0,01"},
        {cents(-1), "-0,01"},
        {cents(50), "0,50"},
        {cents(100), "1,00"},
        {cents(99'999), "999,99"},
        {cents(100'000), "1.000,00"},
        {cents(123'456), "1.234,56"},
        {cents(-123'456), "-1.234,56"},
        {cents(1'234'567'89), "1.234.567,89"},
        {cents(99'999'999'999'999), "999.999.999.999,99"},
        {units(kMost), "922.337.203.685.477,58"},
        {units(kLeast), "-922.337.203.685.477,58"},
        {units(12'345'650), "1.234,57"},
        {units(12'345'649), "1.234,56"},
        {units(50), "0,01"},
        {units(49), "0,00"},
        {units(-50), "-0,01"},
        {units(-49), "0,00"},
        {units(9'999'950), "1.000,00"},
        {units(-9'999'950), "-1.000,00"},
        {0.0, "0,00"},
        {-0.0, "0,00"},
        {1234.565, "1.234,57"},
        {1.005, "1,01"},
        {0.125, "0,13"},
        {-2.675, "-2,68"},
        {1e15, "1.000.000.000.000.000,00"},
        {1e-300, "0,00"},
        {std::int16_t{-7}, "-7,00"},
        {32'768, "32.768,00"},
        {std::numeric_limits<std::int32_t>::min(), "-2.147.483.648,00"},
        {"0", "0,00"},
        {"1234,5", "1.234,50"},
        {"1.234,565", "1.234,57"},
        {" 7 ", "7,00"},
        {",00", "0,00"},
        {"-,5", "-0,50"},
        {"123456789012345678901234567890,125", "123.456.789.012.345.678.901.234.567.890,13"},
        {DateTime::of(1900, 1, 1, 12), "2,50"}});
  rows("#,###.00", {{cents(0), ",00"},
                    {cents(5), ",05"},
                    {cents(-50), "-,50"},
                    {units(-49), ",00"},
                    {units(9'950), "1,00"},
                    {cents(100), "1,00"},
                    {cents(99'900), "999,00"},
                    {cents(123'456), "1.234,56"},
                    {cents(-123'456), "-1.234,56"},
                    {cents(123'456'789), "1.234.567,89"},
                    {"0,00", ",00"},
                    {0, ",00"},
                    {1234.5, "1.234,50"}});
  rows("#,##0.00;(#,##0.00)", {{cents(0), "0,00"},
                               {cents(123'456), "1.234,56"},
                               {cents(-123'456), "(1.234,56)"},
                               {cents(-1), "(0,01)"},
                               {units(-49), "0,00"},
                               {units(-50), "(0,01)"},
                               {units(-9'999'950), "(1.000,00)"},
                               {"-1234,5", "(1.234,50)"},
                               {-3, "(3,00)"}});
}

void FormatTest::formatsNumbersWithFixedDigits_data() {
  columns();
  rows("0000/00", {{514, "0005/14"},
                   {1214, "0012/14"},
                   {0, "0000/00"},
                   {14, "0000/14"},
                   {99'914, "0999/14"},
                   {999'914, "9999/14"},
                   {1'000'014, "10000/14"},
                   {-514, "-0005/14"},
                   {"514", "0005/14"},
                   {"000514", "0005/14"},
                   {"0001", "0000/01"},
                   {"", ""},
                   {"0005/14", "0005/14"}});
  rows("00000/00", {{12'314, "00123/14"},
                    {0, "00000/00"},
                    {9'999'914, "99999/14"},
                    {12'345'614, "123456/14"},
                    {"12314", "00123/14"},
                    {"00123/14", "00123/14"},
                    {"", ""}});
  rows("0000", {{7, "0007"},
                {0, "0000"},
                {12'345, "12345"},
                {-7, "-0007"},
                {6.0, "0006"},
                {9'999.5, "10000"},
                {0.5, "0001"},
                {"7", "0007"},
                {"", ""},
                {"Aut.Num.", "Aut.Num."},
                {std::int16_t{12}, "0012"}});
  rows("000",
       {{5, "005"}, {1000, "1000"}, {0, "000"}, {"5", "005"}, {"MARIA", "MARIA"}, {"12A", "12A"}});
  rows("00", {{5, "05"},
              {0, "00"},
              {99, "99"},
              {100, "100"},
              {2.5, "03"},
              {-0.4, "00"},
              {"1", "01"},
              {std::int16_t{14}, "14"}});
  rows("000000", {{1214, "001214"}, {0, "000000"}, {1'234'567, "1234567"}, {"1214", "001214"}});
  rows("00000000",
       {{"12", "00000012"}, {12, "00000012"}, {0, "00000000"}, {"123456789", "123456789"}});
  rows("0000000000", {{"123456", "0000123456"},
                      {0, "0000000000"},
                      {"12345678901", "12345678901"},
                      {cents(150), "0000000002"},
                      {cents(249), "0000000002"}});
  rows("00000000000000000", {{"1", "00000000000000001"},
                             {"12345678901234567", "12345678901234567"},
                             {"99999999999999999", "99999999999999999"},
                             {"123456789012345678", "123456789012345678"}});
  rows("000\\.000\\.000\\-00", {{"12345678909", "123.456.789-09"},
                                {"00000000191", "000.000.001-91"},
                                {"191", "000.000.001-91"},
                                {0, "000.000.000-00"},
                                {1'234'567'890, "012.345.678-90"},
                                {"123.456.789-09", "123.456.789-09"},
                                {"   .   .   -  ", "   .   .   -  "},
                                {"", ""}});
}

void FormatTest::formatsDates_data() {
  columns();
  const DateTime day = DateTime::of(2014, 3, 7);
  const DateTime moment = DateTime::of(2014, 11, 21, 9, 5, 1);
  rows("dd/MM/yyyy", {{day, "07/03/2014"},
                      {moment, "21/11/2014"},
                      {DateTime::of(100, 1, 1), "01/01/0100"},
                      {DateTime::of(9999, 12, 31), "31/12/9999"},
                      {DateTime(), "30/12/1899"},
                      {"07/03/2014", "07/03/2014"},
                      {"07/03/2014 10:30", "07/03/2014"},
                      {41'964, "21/11/2014"},
                      {41'964.4, "21/11/2014"},
                      {"", ""},
                      {"41964", "41964"},
                      {"31/02/2014", "31/02/2014"},
                      {"7/3/2014", "7/3/2014"}});
  rows("dd/mm/YYYY", {{day, "07/03/2014"}, {"21/11/2014", "21/11/2014"}, {"", ""}});
  rows("DD/MM/YYYY", {{day, "07/03/2014"}});
  rows("yyyy/mm/dd", {{day, "2014/03/07"}, {moment, "2014/11/21"}, {"07/03/2014", "2014/03/07"}});
  rows("dd", {{day, "07"}, {moment, "21"}, {"07/03/2014", "07"}});
  rows("DD", {{day, "07"}, {moment, "21"}});
  rows("d", {{day, "7"}, {moment, "21"}});
  rows("MM", {{day, "03"}, {moment, "11"}});
  rows("M", {{day, "3"}, {moment, "11"}});
  rows("MMMM", {{day, "março"}, {moment, "novembro"}, {"07/03/2014", "março"}});
  rows("mmmm", {{day, "março"}});
  rows("yyyy", {{day, "2014"}, {DateTime::of(100, 1, 1), "0100"}});
  rows("YYYY", {{day, "2014"}});
  rows("yy", {{day, "14"}, {DateTime::of(2005, 1, 1), "05"}, {DateTime::of(2000, 1, 1), "00"}});
  rows("hh:mm", {{moment, "09:05"},
                 {day, "00:00"},
                 {DateTime::of(2014, 1, 1, 23, 59), "23:59"},
                 {"07/03/2014 10:30", "10:30"}});
  rows("hh:mm:ss", {{moment, "09:05:01"}});
  rows(" dd/mm/yyyy h:mm", {{moment, " 21/11/2014 9:05"},
                            {day, " 07/03/2014 0:00"},
                            {DateTime::of(2014, 11, 21, 15, 30), " 21/11/2014 15:30"},
                            {"21/11/2014 15:30:10", " 21/11/2014 15:30"}});
  rows("hh:mm dd/mm", {{moment, "09:05 21/11"}});
  rows("dd\\d MM", {{day, "07d 03"}});
}

void FormatTest::passesOthersUnchanged_data() {
  columns();
  rows("#,##0.00", {{"12.50", "12.50"},
                    {"R$ 5,00", "R$ 5,00"},
                    {"1.23,5", "1.23,5"},
                    {"1,2,3", "1,2,3"},
                    {"21/11/2014", "21/11/2014"},
                    {"abc", "abc"},
                    {"", ""},
                    {" ", " "},
                    {true, "Verdadeiro"}});
  rows("dd/MM/yyyy", {{"abc", "abc"},
                      {"2014-11-21", "2014-11-21"},
                      {"  /  /    ", "  /  /    "},
                      {1e9, "1000000000"},
                      {false, "Falso"}});
  rows("", {{cents(150), "1,5"}, {"x", "x"}});
  rows("---", {{5, "5"}});
}

void FormatTest::servesTheRestOfTheLanguage_data() {
  columns();
  rows("0", {{2.5, "3"}, {-2.5, "-3"}, {0.4, "0"}});
  rows("#", {{0, ""}, {7, "7"}, {-7, "-7"}});
  rows("#,##0", {{1'234'567, "1.234.567"}, {999, "999"}, {-1000, "-1.000"}});
  rows("0,000", {{7, "0.007"}, {1'234'567, "1.234.567"}});
  rows("0.0#", {{1.25, "1,25"}, {1.5, "1,5"}, {2, "2,0"}, {1.255, "1,26"}});
  rows("#.##", {{5, "5,"}, {0.5, ",5"}, {0, ","}});
  rows(".00", {{12.345, "12,35"}, {0, ",00"}});
  rows("0.00;", {{-1, "-1,00"}});
  rows("0;\\-", {{-1, "-"}, {1, "1"}});
  rows("\\;0", {{5, ";5"}});
  rows("R$ 0.00", {{5, "R$ 5,00"}, {-5, "-R$ 5,00"}});
  rows("0,", {{5, "5,"}});
}

void FormatTest::namesEveryMonth() {
  const QStringList names{"janeiro", "fevereiro", "março",    "abril",   "maio",     "junho",
                          "julho",   "agosto",    "setembro", "outubro", "novembro", "dezembro"};
  for (int month = 1; month <= 12; ++month) {
    QCOMPARE(Format(DateTime::of(2014, month, 1), u"MMMM"), names[month - 1]);
  }
}

void FormatTest::givesNothingForNull() {
  for (const QStringView format : {u"#,##0.00", u"0000/00", u"dd/MM/yyyy", u""}) {
    QCOMPARE(Format(Value(), format), QString());
  }
}

void FormatTest::refusesWhatIsNotFinite() {
  for (const QStringView format : {u"#,##0.00", u"dd/MM/yyyy"}) {
    int error = 0;
    try {
      Format(std::numeric_limits<double>::infinity(), format);
    } catch (const RuntimeError& overflow) {
      error = overflow.number();
    }
    QCOMPARE(error, 6);
  }
}

// More formats than are kept prepared, in turns.
void FormatTest::keepsFormatsApart() {
  for (int turn = 0; turn < 2; ++turn) {
    for (int digits = 1; digits <= 400; ++digits) {
      const QString text = Format(7, QString(digits, u'0'));
      QCOMPARE(text, QString(digits - 1, u'0') + QLatin1Char('7'));
    }
  }
}

QUARTELA_TEST_MAIN(FormatTest)
#include "Format_test.moc"
