// No row that is delivered or made is longer than the field that shows it: what does not fit would
// be cut by an alteration that changes nothing.
#include <QTemporaryDir>
#include <array>
#include <functional>
#include <memory>

#include "database/Builder.h"
#include "demonstration/DataMaker.h"
#include "tests/database/PlainDatabase.h"
#include "tests/database/Samples.h"
#include "tests/support/TestMain.h"

namespace quartela::test {

namespace {

struct Field {
  const char* table;
  const char* column;
  // What its field on the screen takes: letters, or the digits of a number. 0: any length.
  int most;
};

constexpr std::array kFields = {
    Field{"Orgao", "ORGAO", 50},
    Field{"Executor", "NOME", 50},
    Field{"Executor", "RG", 0},
    Field{"Executor", "CPF", 14},
    Field{"Executor", "FUNCAO", 50},
    Field{"Tomador", "NOME1", 0},
    Field{"Tomador", "CARGO", 0},
    Field{"Tomador", "RG1", 0},
    Field{"Tomador", "CPF1", 14},
    Field{"Tipos", "TIPO", 20},
    Field{"Tipos", "ELEMENTO", 0},
    Field{"Tipos", "LEI", 0},
    Field{"Tipos", "MATERIAIS", 0},
    Field{"Tipos", "PRAZO", 7},
    Field{"Inciso", "DESCRICAO", 0},
    Field{"Inciso", "CATEGORIA", 0},
    Field{"Inciso", "PRAZO", 2},
    Field{"Dotacao", "DOTACAO", 4},
    Field{"Dotacao", "DESCRICAO", 50},
    Field{"Dotacao", "ANO", 4},
    Field{"Finalidade", "FINALIDADE", 20},
    Field{"Requisicao", "SEQ", 6},
    Field{"Requisicao", "JUSTIFICATIVA", 0},
    Field{"Requisicao", "FICHA", 4},
    Field{"ReqAvulso", "JUSTIFICATIVA", 0},
    Field{"ReqAvulso", "FICHA", 4},
    Field{"Adiantamento", "EMPENHO", 7},
    Field{"Adiantamento", "OP", 5},
    Field{"PrestContas", "ORDEM", 10},
    Field{"PrestContas", "HISTORICO", 45},
    Field{"Viagem", "HSAIDA", 5},
    Field{"Viagem", "HCHEGADA", 5},
    Field{"Viagem", "UF", 2},
    Field{"Viagem", "DESTINO", 0},
    Field{"Viagem", "LOCALIDADE", 255},
    Field{"Viagem", "VEICULO", 0},
    Field{"Viagem", "PLACA", 0},
    Field{"Viagem", "MOTORISTA", 100},
    Field{"Viagem", "PARTICIPANTES", 300},
    Field{"Viagem", "OBS", 400},
    Field{"Viagem", "MOTIVO", 400},
    Field{"Viagem", "ORGAO", 35},
    Field{"IdentificaTransp", "DATA", 10},
    Field{"IdentificaTransp", "DESTINO", 0},
    Field{"IdentificaTransp", "LOCALIDADE", 255},
    Field{"IdentificaTransp", "VEÍCULO", 0},
    Field{"IdentificaTransp", "PLACA", 0},
    Field{"IdentificaTransp", "MOTORISTA", 100},
    Field{"IdentificaTransp", "ACOMPANHANTE", 300},
    Field{"IdentificaTransp", "OBS", 400},
    Field{"IdentificaTransp", "MOTIVO", 400},
    // Both become the identification and the history of a note.
    Field{"ItensTransp", "DOCUMENTO", 10},
    Field{"ItensTransp", "RAZAO", 45},
    Field{"Produtos", "REQUISITANTE", 0},
    Field{"Produtos", "LOCAL", 35},
    Field{"Produtos", "JUSTIFICATIVA", 200},
    Field{"Servicos", "REQUISITANTE", 0},
    Field{"Servicos", "LOCAL", 35},
    Field{"Servicos", "JUSTIFICATIVA", 0},
    Field{"Servicos", "SERVICOS", 0},
    Field{"Cidades", "nome", 0},
    Field{"Cidades", "uf", 2},
};

constexpr int kGoodsLines = 10;
constexpr int kGoodsLetters = 100;
constexpr int kGoodsQuantity = 4;

QList<std::pair<QString, int>> allFields() {
  QList<std::pair<QString, int>> fields;
  for (const Field& field : kFields) {
    fields.append(
        {QString::fromUtf8(field.table) + '.' + QString::fromUtf8(field.column), field.most});
  }
  for (int line = 1; line <= kGoodsLines; ++line) {
    fields.append({QStringLiteral("Produtos.PRODUTO%1").arg(line), kGoodsLetters});
    fields.append({QStringLiteral("Produtos.QUANT%1").arg(line), kGoodsQuantity});
  }
  return fields;
}

}  // namespace

class FieldLengthsTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void everyTextIsListed();
  void rowsFitTheirFields_data();
  void rowsFitTheirFields();

 private:
  void make(const char* name, const std::function<void(const QString&)>& maker) {
    const QString path = folder_.filePath(QLatin1String(name));
    maker(path);
    databases_.append({QLatin1String(name), std::make_shared<PlainDatabase>(path)});
  }

  QTemporaryDir folder_;
  QList<std::pair<QString, std::shared_ptr<PlainDatabase>>> databases_;
};

void FieldLengthsTest::initTestCase() {
  make("delivered.mdb", database::createEmptyDatabase);
  make("sample.mdb", makeSampleDatabase);
  for (const std::uint64_t seed : {1, 2, 3}) {
    demonstration::Options options;
    options.today = DateTime::of(2014, 12, 31);
    options.seed = seed;
    make(qPrintable(QStringLiteral("demonstration%1.mdb").arg(seed)),
         [&](const QString& path) { demonstration::makeDatabase(path, options); });
  }
}

void FieldLengthsTest::everyTextIsListed() {
  QStringList listed;
  for (const auto& [name, most] : allFields()) {
    listed << name;
  }
  PlainDatabase& plain = *databases_.first().second;
  for (const QString& table : plain.tables()) {
    if (table == QLatin1String("Consultas")) {
      continue;
    }
    for (const QStringList& column : plain
                                         .query("SELECT name FROM pragma_table_info('" +
                                                table.toUtf8() + "') WHERE type = 'TEXT'")
                                         .rows) {
      const QString name = table + '.' + column.first();
      QVERIFY2(listed.contains(name), qPrintable(name));
    }
  }
}

void FieldLengthsTest::rowsFitTheirFields_data() {
  QTest::addColumn<QString>("field");
  QTest::addColumn<int>("most");
  for (const auto& [name, most] : allFields()) {
    if (most > 0) {
      QTest::newRow(qPrintable(name)) << name << most;
    }
  }
}

void FieldLengthsTest::rowsFitTheirFields() {
  QFETCH(const QString, field);
  QFETCH(const int, most);
  const QByteArray table = field.section('.', 0, 0).toUtf8();
  const QByteArray column = field.section('.', 1).toUtf8();
  for (const auto& [name, plain] : databases_) {
    const PlainRows longest =
        plain->query("SELECT " + column + " FROM " + table + " WHERE length(" + column + ") > " +
                     QByteArray::number(most));
    QVERIFY2(longest.rows.isEmpty(),
             longest.rows.isEmpty() ? "" : qPrintable(name + ": " + longest.rows.first().first()));
  }
}

}  // namespace quartela::test

using quartela::test::FieldLengthsTest;
QUARTELA_TEST_MAIN(FieldLengthsTest)
#include "FieldLengths_test.moc"
