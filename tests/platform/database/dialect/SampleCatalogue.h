// The tables and stored queries of the program's file, written down for the tests of the dialect.
#pragma once

#include <QString>
#include <QStringList>
#include <array>

#include "platform/database/dialect/Catalogue.h"

namespace quartela::test {

struct SampleTable {
  const char* name;
  // "COLUMN type" one after the other; "key" is a key that the program writes, "auto" one that the
  // engine gives.
  const char* columns;
};

inline constexpr std::array kSampleTables{
    SampleTable{"Requisicao",
                "SEQ key,DATA date,ORGAO i16,TOMADOR i16,VALOR money,FINALIDADE i16,"
                "JUSTIFICATIVA text,FICHA text"},
    SampleTable{"Adiantamento",
                "EMPENHO key,PROCESSO i32,ABERTURA date,RETIRADA date,FECHAR_EM date,"
                "FECHAMENTO date,DEVOLUCAO money,DATADEV date,ANULADO bool,OP i32"},
    SampleTable{"PrestContas",
                "SEQ auto,PROCESSO i32,DATA date,ORDEM text,HISTORICO text,"
                "DESPESAS money,ID_VIAGEM i16"},
    SampleTable{"Executor",
                "ORDEM auto,IDORGAO i16,NOME text,RG text,CPF text,FUNCAO text,ATIVO bool"},
    SampleTable{"Tomador", "ID auto,NOME1 text,CARGO text,RG1 text,CPF1 text,ATIVO bool"},
    SampleTable{"Orgao", "IDORGAO auto,ORGAO text"},
    SampleTable{"Tipos",
                "SEQUENCIA auto,IDORGAO i16,TIPO text,ELEMENTO text,LEI text,"
                "MATERIAIS text,PRAZO text,ATIVO bool"},
    SampleTable{"Inciso", "ID auto,TIPO i16,DESCRICAO text,CATEGORIA text,PRAZO i16,ATIVO bool"},
    SampleTable{"Dotacao", "ID auto,IDTIPO i16,IDORGAO i16,DOTACAO i16,DESCRICAO text,ANO i16"},
    SampleTable{"Finalidade", "ID auto,FINALIDADE text"},
    SampleTable{"ReqAvulso",
                "SEQ auto,DATA date,ORGAO i16,TOMADOR i16,VALOR money,FINALIDADE i16,"
                "JUSTIFICATIVA text,FICHA text"},
    SampleTable{"Viagem",
                "ITEM auto,PLANILHA i16,PROCESSO i32,DATA_SAIDA date,DATA_CHEGADA date,"
                "HSAIDA text,HCHEGADA text,UF text,DESTINO text,LOCALIDADE text,"
                "VEICULO text,PLACA text,DISTANCIA i16,MOTORISTA text,"
                "PARTICIPANTES text,OBS text,MOTIVO text,ORGAO text"},
    SampleTable{"IdentificaTransp",
                "ITEM auto,PLANILHA i16,PROCESSO i32,DATA date,DESTINO text,LOCALIDADE text,"
                "VEÍCULO text,PLACA text,HSAIDA i32,HCHEGADA i32,MOTORISTA text,ACOMPANHANTE text,"
                "OBS text,MOTIVO text"},
    SampleTable{"ItensTransp",
                "IDENTIFICA auto,IDENT_TRANSP i32,DATADOC date,RAZAO text,"
                "DOCUMENTO text,VALOR money"},
    SampleTable{"Produtos",
                "ITEM auto,DATA date,REQUISITANTE text,LOCAL text,JUSTIFICATIVA text,"
                "PRODUTO1 text,QUANT1 text,PRODUTO2 text,QUANT2 text"},
    SampleTable{"Servicos",
                "ITEM auto,DATA date,REQUISITANTE text,LOCAL text,"
                "JUSTIFICATIVA text,SERVICOS text"},
    SampleTable{"Cidades", "id key,nome text,uf text,distancia number"},
    // Of the tests alone: two key columns, a name that needs quotes, reals.
    SampleTable{"Medidas", "PARTE key,NR key,com \"aspas\" text,VALOR number,LIMITE money"},
};

struct SampleQuery {
  const char* name;
  const char* text;
};

inline constexpr const char* kRequestColumns =
    "SELECT Requisicao.SEQ, Requisicao.DATA, Requisicao.VALOR, Requisicao.FINALIDADE, Orgao.ORGAO, "
    "Tomador.NOME1, Tipos.TIPO, Adiantamento.EMPENHO, Adiantamento.ABERTURA, "
    "Adiantamento.RETIRADA, Adiantamento.FECHAR_EM, Adiantamento.FECHAMENTO, "
    "(Adiantamento.FECHAMENTO - Adiantamento.RETIRADA) AS DIAS ";
inline constexpr const char* kRequestJoins =
    " JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO) "
    "LEFT JOIN Executor ON Requisicao.ORGAO = Executor.ORDEM) "
    "LEFT JOIN Orgao ON Executor.IDORGAO = Orgao.IDORGAO) "
    "LEFT JOIN Tomador ON Requisicao.TOMADOR = Tomador.ID) "
    "LEFT JOIN Tipos ON Requisicao.FINALIDADE = Tipos.SEQUENCIA;\n";

inline constexpr std::array kSampleQueries{
    SampleQuery{"Sel_Planilha",
                "SELECT Requisicao.SEQ, Adiantamento.EMPENHO, Adiantamento.ABERTURA, "
                "Adiantamento.RETIRADA, Executor.NOME, Tomador.NOME1, Tomador.CARGO, "
                "Orgao.ORGAO, Requisicao.VALOR FROM (((Requisicao INNER JOIN Adiantamento "
                "ON Requisicao.SEQ = Adiantamento.PROCESSO) LEFT JOIN Executor "
                "ON Requisicao.ORGAO = Executor.ORDEM) LEFT JOIN Orgao "
                "ON Executor.IDORGAO = Orgao.IDORGAO) LEFT JOIN Tomador "
                "ON Requisicao.TOMADOR = Tomador.ID;"},
    SampleQuery{"Sel_Print_req",
                "SELECT Requisicao.SEQ, Requisicao.DATA, Orgao.ORGAO, Tomador.NOME1, "
                "Executor.NOME, Tipos.TIPO FROM (((Requisicao LEFT JOIN Executor "
                "ON Requisicao.ORGAO = Executor.ORDEM) LEFT JOIN Orgao "
                "ON Executor.IDORGAO = Orgao.IDORGAO) LEFT JOIN Tomador "
                "ON Requisicao.TOMADOR = Tomador.ID) LEFT JOIN Tipos "
                "ON Requisicao.FINALIDADE = Tipos.SEQUENCIA;"},
    SampleQuery{"Sel_Print_reqavulso",
                "SELECT ReqAvulso.SEQ, ReqAvulso.DATA, Tomador.NOME1 FROM ReqAvulso "
                "LEFT JOIN Tomador ON ReqAvulso.TOMADOR = Tomador.ID;"},
    SampleQuery{"Sel_Dotacao",
                "SELECT Dotacao.ID, Dotacao.IDTIPO, Dotacao.DOTACAO, Dotacao.ANO, "
                "Dotacao.DESCRICAO, Tipos.TIPO, Dotacao.IDORGAO, Orgao.ORGAO FROM (Dotacao "
                "LEFT JOIN Tipos ON Dotacao.IDTIPO = Tipos.SEQUENCIA) LEFT JOIN Orgao "
                "ON Dotacao.IDORGAO = Orgao.IDORGAO;"},
    SampleQuery{"Sel_Viagem",
                "SELECT Viagem.ITEM, Viagem.ORGAO, Viagem.VEICULO, Viagem.DATA_SAIDA "
                "FROM Viagem;"},
    SampleQuery{"Sel_Uf", "SELECT DISTINCT Cidades.uf FROM Cidades ORDER BY Cidades.uf;"},
    // Of the tests alone: what cannot be merged with every statement.
    SampleQuery{"Sel_Totais",
                "SELECT PrestContas.PROCESSO, Sum(PrestContas.DESPESAS) AS TOTAL FROM PrestContas "
                "GROUP BY PrestContas.PROCESSO"},
    SampleQuery{"Sel_Primeiras", "SELECT TOP 3 * FROM Cidades ORDER BY nome"},
    SampleQuery{"Sel_Ativos",
                "SELECT Executor.ORDEM, Executor.NOME FROM Executor "
                "WHERE Executor.ATIVO = True ORDER BY Executor.NOME"},
    SampleQuery{"Sel_Orgaos", "SELECT Orgao.IDORGAO, Orgao.ORGAO FROM Orgao"},
    SampleQuery{"Sel_Siglas",
                "SELECT Orgao.IDORGAO AS CHAVE, Orgao.ORGAO & ' -' AS NOME "
                "FROM Orgao"},
    SampleQuery{"Sel_Pares",
                "SELECT Tomador.ID, Inciso.TIPO, Tipos.TIPO FROM Tomador, "
                "Tipos INNER JOIN Inciso ON Tipos.SEQUENCIA = Inciso.TIPO"},
    SampleQuery{"Sel_Sobre_ativos", "SELECT * FROM Sel_Ativos WHERE NOME Like 'A%'"},
    SampleQuery{"Sel_Circulo", "SELECT * FROM Sel_Roda WHERE 1 = 1"},
    SampleQuery{"Sel_Roda", "SELECT * FROM Sel_Circulo"},
    SampleQuery{"Sel_Apaga", "DELETE FROM Cidades"},
    SampleQuery{"Sel_Errada", "SELECT FROM Cidades"},
};

inline CatalogueColumn sampleColumn(const QString& definition) {
  const qsizetype blank = definition.lastIndexOf(QLatin1Char(' '));
  const QString type = definition.mid(blank + 1);
  CatalogueColumn column;
  column.name = definition.left(blank);
  column.generated = type == QLatin1String("auto");
  column.primaryKey = column.generated || type == QLatin1String("key");
  column.required = column.primaryKey;
  column.type = type == QLatin1String("text")     ? ValueType::Text
                : type == QLatin1String("date")   ? ValueType::DateTime
                : type == QLatin1String("money")  ? ValueType::Money
                : type == QLatin1String("number") ? ValueType::Number
                : type == QLatin1String("bool")   ? ValueType::Bool
                : type == QLatin1String("i16")    ? ValueType::I16
                                                  : ValueType::I32;
  return column;
}

inline CatalogueTable sampleTable(const SampleTable& sample) {
  CatalogueTable table;
  table.name = QString::fromUtf8(sample.name);
  for (const QString& column : QString::fromUtf8(sample.columns).split(QLatin1Char(','))) {
    table.columns.push_back(sampleColumn(column));
  }
  return table;
}

inline Catalogue sampleCatalogue() {
  Catalogue catalogue;
  for (const SampleTable& table : kSampleTables) {
    catalogue.addTable(sampleTable(table));
  }
  for (const SampleQuery& query : kSampleQueries) {
    catalogue.addStoredQuery(QString::fromUtf8(query.name), QString::fromUtf8(query.text));
  }
  const QString columns = QString::fromUtf8(kRequestColumns);
  const QString joins = QString::fromUtf8(kRequestJoins);
  catalogue.addStoredQuery(QStringLiteral("Sel_Req_left"),
                           columns + QStringLiteral("FROM ((((Requisicao LEFT") + joins);
  catalogue.addStoredQuery(QStringLiteral("Sel_Req_inner"),
                           columns + QStringLiteral("FROM ((((Requisicao INNER") + joins);
  return catalogue;
}

}  // namespace quartela::test
