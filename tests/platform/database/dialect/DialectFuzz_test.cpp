// Statements spoiled in every way: each becomes one statement that the engine takes, or an error
// with a number of the list.
#include <random>
#include <set>

#include "platform/database/dialect/Dialect.h"
#include "platform/values/RuntimeError.h"
#include "tests/platform/database/dialect/SampleEngine.h"
#include "tests/platform/database/dialect/SampleStatements.h"
#include "tests/platform/database/dialect/Translated.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

constexpr int kStatementsPerSeed = 50'000;
constexpr int kComposed = 20'000;
constexpr qsizetype kLongest = 3'000;

class Spoiler {
 public:
  explicit Spoiler(unsigned seed) : random_(seed) {
    for (const char* statement : test::kSampleStatements) {
      statements_.push_back(QString::fromUtf8(statement));
    }
    for (const char* statement :
         {"SELECT Max(VALOR) & 'x', LIMITE / 5, NR Mod VALOR FROM Medidas AS M WHERE Not "
          "(LIMITE In (1, 2.5)) GROUP BY VALOR, LIMITE, NR",
          "SELECT * FROM Sel_Totais RIGHT JOIN Sel_Siglas ON TOTAL = CHAVE ORDER BY 1 DESC",
          "SELECT TOP 3 Min(nome), Sum(distancia) FROM Sel_Primeiras GROUP BY uf HAVING "
          "Count(*) > 1 - 2 * 3 Mod 4 \\ 5",
          "DELETE FROM Cidades WHERE nome = \"a\"\"b\" Or Now() - #2014/01/31 10:20# > 5"}) {
      statements_.push_back(QString::fromUtf8(statement));
    }
  }

  QString next() {
    QString text = any();
    for (int times = number(3); times >= 0; --times) {
      spoil(text);
    }
    text.truncate(kLongest);
    return text;
  }

 private:
  int number(qsizetype end) {
    return end <= 1 ? 0 : std::uniform_int_distribution<int>(0, static_cast<int>(end) - 1)(random_);
  }
  const QString& any() {
    return statements_[static_cast<std::size_t>(
        number(static_cast<qsizetype>(statements_.size())))];
  }

  // The places of a word or a sign, so that a spoiled text still has a meaning now and then.
  QString word(const QString& text) {
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return words.isEmpty() ? QString() : words[number(words.size())];
  }

  void spoil(QString& text) {
    const int at = number(text.size() + 1);
    switch (number(9)) {
      case 0:
        text.insert(at, QChar(static_cast<char16_t>(number(0x180))));
        break;
      case 1:
        text.insert(at, QChar(static_cast<char16_t>(number(0x10000))));
        break;
      case 2:
        text.remove(at, 1 + number(8));
        break;
      case 3:
        text.insert(at, text.mid(number(text.size()), number(40)));
        break;
      case 4:
        text = text.left(at) + any().mid(number(200));
        break;
      case 5:
        text.insert(at, QChar(QStringLiteral("'\"[]#();,.*-+/\\&=<>@%_ 0")[number(24)]));
        break;
      case 6:
        text.replace(word(text), word(any()));
        break;
      case 7:
        text.insert(at, word(any()) + QLatin1Char(' '));
        break;
      default:
        text.insert(at, text.mid(at, 1 + number(6)).repeated(1 + number(30)));
    }
  }

  std::mt19937 random_;
  std::vector<QString> statements_;
};

// Makes statements that are right in form, of random expressions.
class Composer {
 public:
  explicit Composer(unsigned seed) : random_(seed) {}

  QString next() {
    if (die(4) == 1) {
      return grouped();
    }
    const QString columns = item() + QLatin1String(", ") + item();
    const QString source = pick({"Medidas", "Medidas AS M", "Cidades, Medidas",
                                 "Medidas LEFT JOIN Sel_Siglas ON NR = CHAVE",
                                 "Sel_Siglas RIGHT JOIN Medidas ON PARTE = CHAVE"});
    return pick({"SELECT ", "SELECT DISTINCT ", "SELECT TOP 2 "}) + columns +
           QLatin1String(" FROM ") + source + QLatin1String(" WHERE ") + condition(4) +
           pick({"", " ORDER BY 1", " ORDER BY 2 DESC, 1", " ORDER BY NR"});
  }

 private:
  QString pick(std::initializer_list<const char*> choices) {
    const auto last = static_cast<int>(choices.size()) - 1;
    return QString::fromUtf8(choices.begin()[std::uniform_int_distribution<int>(0, last)(random_)]);
  }
  int die(int sides) { return std::uniform_int_distribution<int>(1, sides)(random_); }

  // Aggregates and constants in every place that could take them.
  QString grouped() {
    return QLatin1String("SELECT ") + total() + QLatin1String(", ") + total() +
           QLatin1String(" FROM Medidas") + pick({"", " WHERE NR > 1"}) +
           pick({"", "", " GROUP BY NR", " GROUP BY PARTE, NR"}) +
           (die(3) == 1 ? QLatin1String(" HAVING ") + total() + QLatin1String(" > 1") : QString()) +
           (die(2) == 1 ? QLatin1String(" ORDER BY ") + total() + pick({"", " DESC, 1"})
                        : QString());
  }
  QString total() {
    return pick({"Max(NR)", "Count(*)", "Sum(VALOR) + 1", "1", "NR", "PARTE", "True", "Now()",
                 "NR + 2", "-Count(NR)", "Min(LIMITE) / 2", "Null"});
  }

  QString item() { return die(2) == 1 ? number(5) : die(2) == 1 ? moment(4) : text(4); }

  QString number(int depth) {
    if (depth == 0 || die(4) == 1) {
      return pick({"NR", "PARTE", "Medidas.VALOR", "LIMITE", "7", "2.5", "-3", "0.00001", "True",
                   "Null", "(NR)"});
    }
    const int less = depth - 1;
    switch (die(5)) {
      case 1:
        return QStringLiteral("(%1 - %2)").arg(moment(less), moment(less));
      case 2:
        return QStringLiteral("-(%1)").arg(number(less));
      case 3:
        return QStringLiteral("Year(%1)").arg(moment(less));
      default:
        return number(less) + pick({" + ", " - ", " * ", " / ", " \\ ", " Mod "}) + number(less);
    }
  }

  QString moment(int depth) {
    if (depth == 0 || die(3) == 1) {
      return pick({"Now()", "#2014/01/31#", "#2014/01/31 10:20:30#"});
    }
    return QLatin1Char('(') + moment(depth - 1) + pick({" + ", " - "}) + number(depth - 1) +
           QLatin1Char(')');
  }

  QString text(int depth) {
    if (depth == 0 || die(3) == 1) {
      return pick({"[com \"aspas\"]", "'D''água'", "\"x\"", "''"});
    }
    return text(depth - 1) + QLatin1String(" & ") +
           (die(2) == 1 ? number(depth - 1) : moment(depth - 1));
  }

  QString condition(int depth) {
    if (depth == 0) {
      return number(1) + pick({" = ", " < ", " >= ", " <> "}) + number(1);
    }
    const int less = depth - 1;
    switch (die(6)) {
      case 1:
        return QStringLiteral("Not (%1)").arg(condition(less));
      case 2:
        return text(less) + pick({" Like ", " Not Like ", " = "}) + text(less);
      case 3:
        return QStringLiteral("%1 Between %2 And %3").arg(moment(less), moment(less), moment(less));
      case 4:
        return QStringLiteral("%1 In (%2, %3)").arg(number(less), number(less), number(less));
      default:
        return QLatin1Char('(') + condition(less) + pick({" And ", " Or "}) + condition(less) +
               QLatin1Char(')');
    }
  }

  std::mt19937 random_;
};

bool beginsWithDelete(const QString& statement) {
  return statement.trimmed().startsWith(QLatin1String("DELETE"), Qt::CaseInsensitive);
}

}  // namespace

class DialectFuzzTest : public QObject {
  Q_OBJECT

 private slots:
  void spoiledStatements_data() {
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : {1U, 20U, 300U, 4000U}) {
      QTest::addRow("seed %u", seed) << seed;
    }
  }

  // Enough must still have a meaning, or the test would prove nothing of binder and renderer.
  void spoiledStatements() {
    QFETCH(unsigned, seed);
    const int taken = takenOf(Spoiler(seed), kStatementsPerSeed);
    QVERIFY2(taken > kStatementsPerSeed / 100, qPrintable(QString::number(taken)));
  }

  // Nearly all are right; some lie too deep.
  void composedStatements() {
    const int taken = takenOf(Composer(7), kComposed);
    QVERIFY2(taken > kComposed / 2, qPrintable(QString::number(taken)));
  }

 private:
  template <typename Source>
  static int takenOf(Source source, int count) {
    static const std::set<int> kNumbers{3061, 3065, 3075, 3078, 3464};
    const Catalogue catalogue = test::sampleCatalogue();
    test::SampleEngine engine;
    int taken = 0;
    for (int i = 0; i < count && !QTest::currentTestFailed(); ++i) {
      const QString statement = source.next();
      try {
        check(engine, statement, test::translate(statement, catalogue));
        ++taken;
      } catch (const RuntimeError& error) {
        if (!kNumbers.contains(error.number())) {
          QTest::qFail(qPrintable(statement), __FILE__, __LINE__);
        }
      }
    }
    return taken;
  }

  static void check(test::SampleEngine& engine, const QString& statement,
                    const test::Translated& translated) {
    const bool deletes = translated.kind == dialect::StatementKind::Delete;
    QVERIFY2(translated.sql.starts_with(deletes ? "DELETE FROM " : "SELECT "),
             translated.sql.c_str());
    QVERIFY2(!deletes || beginsWithDelete(statement), qPrintable(statement));
    const QString refused = engine.refusal(
        translated.sql, static_cast<int>(translated.columns.size() + translated.keyColumns.size()));
    QVERIFY2(refused.isEmpty(),
             qPrintable(statement + QStringLiteral("\n  ") +
                        QString::fromStdString(translated.sql) + QStringLiteral("\n  ") + refused));
  }
};

QUARTELA_TEST_MAIN(DialectFuzzTest)
#include "DialectFuzz_test.moc"
