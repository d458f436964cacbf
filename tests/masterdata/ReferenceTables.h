// The seven reference tables as an operator meets them, one row a screen: what is told of its look,
// and what is typed, picked, stored and shown when a row goes through it.
#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>

#include "masterdata/frmDotacao.h"
#include "masterdata/frmExecutor.h"
#include "masterdata/frmLei.h"
#include "masterdata/frmOrgao.h"
#include "masterdata/frmTipoDespesa.h"
#include "masterdata/frmTipos.h"
#include "masterdata/frmTomador.h"

namespace quartela::test {

// A control and what is typed, picked or shown there. A check box is given "x" when it is to be
// pressed, or shows ticked; "" otherwise.
using Field = QPair<const char*, QString>;

struct ReferenceTable {
  const char* name;
  std::function<std::unique_ptr<QWidget>()> open;
  // Rows 1 to 3 (901 to 903 of the table that is delivered with rows); the third has no dependants.
  const char* rows;

  QString title;
  QString searchLabel;  // empty without a search
  QStringList heads;
  QList<int> twips;
  bool ticks = false;
  QString menu = QStringLiteral("Excluir item");
  QList<QPair<const char*, QString>> words;  // the commands

  const char* include = "Command1_3";
  const char* cancel = "Command1_0";
  const char* save = "Command2";
  const char* leave = "Command3";
  bool leavingAsks = false;
  const char* focusToInclude;
  const char* focusToAlter;

  QStringList row;      // the third one's cells, the key first
  QList<Field> loaded;  // what an alteration of it shows

  QString found;                 // a search that finds it
  QStringList keys;              // the keys that this search finds
  QString nothing;               // a search that finds nothing
  const char* depend = nullptr;  // makes something depend on the third row

  QList<Field> typed;  // a whole new row
  QString newKey;
  const char* stored;  // the new row as text
  QString storedNew;
  QList<Field> reloaded;  // what an alteration of it shows
  QList<Field> changed;
  QString storedChanged;

  Field text;               // any field of text
  const char* required;     // the field that is missing when it is emptied; null for none
  QString requiredText;     // what is said then
  QStringList searchRound;  // what Tab visits before an inclusion
  QStringList editRound;    // and during one
};

template <typename Window>
std::unique_ptr<QWidget> make() {
  return std::make_unique<Window>();
}

// The commands of a screen of two pages, where it has no words of its own.
inline QList<QPair<const char*, QString>> usualWords() {
  return {{"cmdProcura", "Procurar"}, {"Command1_3", "Incluir"}, {"Command1_1", "Alterar"},
          {"Command2", "Gravar"},     {"Command1_0", "Cancel"},  {"Command3", "Sair"}};
}

inline QStringList usualSearchRound() {
  return {"txtpesquisa", "cmdProcura", "ListView1", "Command1_3", "Command1_1", "Command3"};
}

inline QString allRequired() {
  return QStringLiteral("Todos os campos obrigatórios devem ser preenchidos!!");
}

inline QString allRequiredWithABlank() {
  return QStringLiteral("Todos os campos obrigatórios devem ser preenchidos !!");
}

inline ReferenceTable secretariats() {
  return {
      .name = "secretariats",
      .open = make<frmOrgao>,
      .rows = "INSERT INTO Orgao(IDORGAO, ORGAO) VALUES (3, 'Obras')",
      .title = "Cadastro de Secretarias",
      .searchLabel = "Pesquisar por Nome:",
      .heads = {"ORDEM", "SECRETARIA"},
      .twips = {1764, 7056},
      .words = usualWords(),
      .focusToInclude = "txtsecretaria",
      .focusToAlter = "txtsecretaria",
      .row = {"0003", "Obras"},
      .loaded = {{"txtordem", "0003"}, {"txtsecretaria", "Obras"}},
      .found = "BRA",
      .keys = {"0003"},
      .nothing = "zzz",
      .depend = "INSERT INTO Executor(ORDEM, IDORGAO, NOME) VALUES (77, 3, 'Outro')",
      .typed = {{"txtsecretaria", "  Caixa d'Água "}},
      .newKey = "0004",
      .stored = "SELECT ORGAO FROM Orgao WHERE IDORGAO = 4",
      .storedNew = "Caixa d'Água",
      .reloaded = {{"txtordem", "0004"}, {"txtsecretaria", "Caixa d'Água"}},
      .changed = {{"txtsecretaria", "Ensino"}},
      .storedChanged = "Ensino",
      .text = {"txtsecretaria", "Nova"},
      .required = "txtsecretaria",
      .requiredText = allRequired(),
      .searchRound = usualSearchRound(),
      .editRound = {"txtsecretaria", "Command2", "Command1_0", "Command3"},
  };
}

// The name is kept as typed, blanks included.
inline ReferenceTable purposes() {
  return {
      .name = "purposes",
      .open = make<frmTipoDespesa>,
      .rows =
          "INSERT INTO Finalidade(ID, FINALIDADE) VALUES (901, 'Eventos'), (902, 'Reparo'), "
          "(903, 'Ajuda')",
      .title = "Tipos de Adiantamentos",
      .searchLabel = "Pesquisar por Finalidade:",
      .heads = {"ORDEM", "FINALIDADE"},
      .twips = {1411, 8819},
      .words = usualWords(),
      .focusToInclude = "txtFinalidade",
      .focusToAlter = "txtFinalidade",
      .row = {"0903", "Ajuda"},
      .loaded = {{"txtordem", "0903"}, {"txtFinalidade", "Ajuda"}},
      .found = "JUD",
      .keys = {"0903"},
      .nothing = "zzz",
      .typed = {{"txtFinalidade", " Copo d'água "}},
      .newKey = "0904",
      .stored = "SELECT FINALIDADE FROM Finalidade WHERE ID = 904",
      .storedNew = " Copo d'água ",
      .reloaded = {{"txtordem", "0904"}, {"txtFinalidade", " Copo d'água "}},
      .changed = {{"txtFinalidade", "Congresso"}},
      .storedChanged = "Congresso",
      .text = {"txtFinalidade", "Nova"},
      .required = nullptr,
      .requiredText = {},
      .searchRound = usualSearchRound(),
      .editRound = {"txtFinalidade", "Command2", "Command1_0", "Command3"},
  };
}

inline ReferenceTable orderers() {
  return {
      .name = "orderers",
      .open = make<frmExecutor>,
      .rows =
          "INSERT INTO Executor(ORDEM, IDORGAO, NOME) VALUES (2, 1, 'Beatriz');"
          "INSERT INTO Executor(ORDEM, IDORGAO, NOME, RG, CPF, FUNCAO, ATIVO) VALUES "
          "(3, 2, 'Carlos', '12.345', '529.982.247-25', 'Diretor', 1)",
      .title = "Ordenador de Despesas",
      .searchLabel = "Pesquisar por Nome:",
      .heads = {"ORDEM", "ORGÃO", "NOME", "RG", "CPF", "FUNÇÃO"},
      .twips = {1411, 3175, 3528, 2646, 2646, 3528},
      .ticks = true,
      .words = usualWords(),
      .focusToInclude = "cmbOrgao",
      .focusToAlter = "txtnome",
      .row = {"0003", "002 - Educação", "Carlos", "12.345", "529.982.247-25", "Diretor"},
      .loaded = {{"txtordem", "0003"},
                 {"cmbOrgao", "Educação"},
                 {"txtnome", "Carlos"},
                 {"txtrg", "12.345"},
                 {"txtcpf", "529.982.247-25"},
                 {"txtfuncao", "Diretor"},
                 {"chkAtivo", "x"}},
      .found = "CARL",
      .keys = {"0003"},
      .nothing = "zzz",
      .depend = "INSERT INTO Requisicao(SEQ, ORGAO, TOMADOR) VALUES (114, 3, 1)",
      .typed = {{"cmbOrgao", "Saúde"},
                {"txtnome", " Maria D'Ávila "},
                {"txtrg", " 98 "},
                {"txtcpf", "12345678909"},
                {"txtfuncao", " Chefe "},
                {"chkAtivo", "x"}},
      .newKey = "0004",
      .stored =
          "SELECT IDORGAO || '|' || NOME || '|' || RG || '|' || CPF || '|' || FUNCAO || '|' "
          "|| ATIVO FROM Executor WHERE ORDEM = 4",
      .storedNew = "1|Maria D'Ávila|98|123.456.789-09|Chefe|1",
      .reloaded = {{"txtordem", "0004"},
                   {"cmbOrgao", "Saúde"},
                   {"txtnome", "Maria D'Ávila"},
                   {"txtrg", "98"},
                   {"txtcpf", "123.456.789-09"},
                   {"txtfuncao", "Chefe"},
                   {"chkAtivo", "x"}},
      .changed = {{"cmbOrgao", "Educação"}, {"chkAtivo", "x"}},
      .storedChanged = "2|Maria D'Ávila|98|123.456.789-09|Chefe|0",
      .text = {"txtnome", "Nova"},
      .required = "txtnome",
      .requiredText = allRequired(),
      .searchRound = usualSearchRound(),
      .editRound = {"cmbOrgao", "txtnome", "txtrg", "txtcpf", "txtfuncao", "chkAtivo", "Command2",
                    "Command1_0", "Command3"},
  };
}

inline ReferenceTable persons() {
  return {
      .name = "persons",
      .open = make<frmTomador>,
      .rows =
          "INSERT INTO Tomador(ID, NOME1) VALUES (2, 'Ana');"
          "INSERT INTO Tomador(ID, NOME1, CARGO, RG1, CPF1, ATIVO) VALUES "
          "(3, 'Bruno', 'Fiscal', '55', '529.982.247-25', 1)",
      .title = "Responsáveis pelo Recursos",
      .searchLabel = "Pesquisar por Nome:",
      .heads = {"ORDEM", "NOME", "CARGO", "RG", "CPF"},
      .twips = {1411, 4410, 4410, 2646, 3175},
      .ticks = true,
      .menu = "Excluir Item",
      .words = usualWords(),
      .focusToInclude = "txtnome",
      .focusToAlter = "txtnome",
      .row = {"0003", "Bruno", "Fiscal", "55", "529.982.247-25"},
      .loaded = {{"txtordem", "0003"},
                 {"txtnome", "Bruno"},
                 {"txtcargo", "Fiscal"},
                 {"txtrg", "55"},
                 {"txtcpf", "529.982.247-25"},
                 {"chkAtivo", "x"}},
      .found = "BRU",
      .keys = {"0003"},
      .nothing = "zzz",
      .depend = "INSERT INTO Requisicao(SEQ, ORGAO, TOMADOR) VALUES (114, 1, 3)",
      .typed = {{"txtnome", " João D'Ávila "},
                {"txtrg", " 56 "},
                {"txtcpf", "12345678909"},
                {"txtcargo", " Motorista "},
                {"chkAtivo", "x"}},
      .newKey = "0004",
      .stored =
          "SELECT NOME1 || '|' || CARGO || '|' || RG1 || '|' || CPF1 || '|' || ATIVO FROM "
          "Tomador WHERE ID = 4",
      .storedNew = "João D'Ávila|Motorista|56|123.456.789-09|1",
      .reloaded = {{"txtordem", "0004"},
                   {"txtnome", "João D'Ávila"},
                   {"txtcargo", "Motorista"},
                   {"txtrg", "56"},
                   {"txtcpf", "123.456.789-09"},
                   {"chkAtivo", "x"}},
      .changed = {{"chkAtivo", "x"}, {"txtcpf", ""}},
      .storedChanged = "João D'Ávila|Motorista|56|___.___.___-__|0",
      .text = {"txtnome", "Nova"},
      .required = "txtnome",
      .requiredText = allRequiredWithABlank(),
      .searchRound = usualSearchRound(),
      .editRound = {"txtnome", "txtrg", "txtcpf", "txtcargo", "chkAtivo", "Command2", "Command1_0",
                    "Command3"},
  };
}

inline ReferenceTable types() {
  return {
      .name = "types",
      .open = make<frmTipos>,
      .rows =
          "INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO) VALUES (2, 2, 'Curso');"
          "INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO, ELEMENTO, LEI, MATERIAIS, PRAZO, ATIVO) "
          "VALUES (3, 2, 'Viagem', '339030 - Outros Materiais de Consumo', 'Lei 1', 'Papel', "
          "'30 dias', 1)",
      .title = "Tipos de Processos",
      .searchLabel = "Pesquisar por Orgão:",
      .heads = {"ITEM", "SECRETARIA", "TIPO", "ELEMENTO", "PRAZO"},
      .twips = {2540, 5292, 2540, 2540, 2540},
      .ticks = true,
      .words = {{"cmdProcura", "Procurar"},
                {"Command1_0", "Incluir"},
                {"Command1_1", "Alterar"},
                {"Command1_3", "Clonar"},
                {"Command3", "Gravar"},
                {"Command1_2", "Cancelar"},
                {"Command2", "Sair"}},
      .include = "Command1_0",
      .cancel = "Command1_2",
      .save = "Command3",
      .leave = "Command2",
      .focusToInclude = "cmbOrgao",
      .focusToAlter = "cmbOrgao",
      .row = {"0003", "02 - Educação", "Viagem", "339030 - Outros Materiais de Consumo", "30 dias"},
      .loaded = {{"txtId", "0003"},
                 {"cmbOrgao", "Educação"},
                 {"txttipo", "Viagem"},
                 {"cmbElemento", "339030 - Outros Materiais de Consumo"},
                 {"cmbPrazo", "30 dias"},
                 {"txtInciso", "Lei 1"},
                 {"txtMateriais", "Papel"},
                 {"chkAtivo", "x"}},
      .found = "duca",
      .keys = {"0002", "0003"},
      .nothing = "Viagem",
      .depend = "INSERT INTO Inciso(TIPO, DESCRICAO) VALUES (3, 'x')",
      .typed = {{"cmbOrgao", "Saúde"},
                {"txttipo", "Curso"},
                {"cmbElemento", "339033 - Passagens e Locomoções"},
                {"cmbPrazo", "05 dias"},
                {"txtInciso", " Lei d'Água "},
                {"txtMateriais", " Passagens "}},
      .newKey = "0004",
      .stored =
          "SELECT IDORGAO || '|' || TIPO || '|' || ELEMENTO || '|' || LEI || '|' || MATERIAIS "
          "|| '|' || PRAZO || '|' || ATIVO FROM Tipos WHERE SEQUENCIA = 4",
      .storedNew = "1|Curso|339033 - Passagens e Locomoções|Lei d'Água|Passagens|05 dias|0",
      .reloaded = {{"txtId", "0004"},
                   {"cmbOrgao", "Saúde"},
                   {"txttipo", "Curso"},
                   {"cmbElemento", "339033 - Passagens e Locomoções"},
                   {"cmbPrazo", "05 dias"},
                   {"txtInciso", "Lei d'Água"},
                   {"txtMateriais", "Passagens"},
                   {"chkAtivo", ""}},
      .changed = {{"cmbPrazo", "60 dias"}, {"chkAtivo", "x"}},
      .storedChanged = "1|Curso|339033 - Passagens e Locomoções|Lei d'Água|Passagens|60 dias|1",
      .text = {"txtInciso", "Nova"},
      .required = "txtInciso",
      .requiredText = allRequiredWithABlank(),
      .searchRound = {"txtpesquisa", "cmdProcura", "ListView1", "Command1_0", "Command1_1",
                      "Command1_3", "Command2"},
      .editRound = {"cmbOrgao", "txttipo", "cmbElemento", "cmbPrazo", "txtInciso", "txtMateriais",
                    "chkAtivo", "Command3", "Command1_2", "Command2"},
  };
}

inline ReferenceTable allocations() {
  return {
      .name = "allocations",
      .open = make<frmDotacao>,
      .rows =
          "INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO, ATIVO) VALUES (2, 2, 'Viagem', 1);"
          "INSERT INTO Dotacao(ID, IDTIPO, IDORGAO, DOTACAO, ANO, DESCRICAO) VALUES "
          "(1, 1, 1, 125, 2013, 'Tinta'), (2, 1, 1, 126, 2014, 'Papel'), "
          "(3, 2, 2, 127, 2014, 'Passagens')",
      .title = "Cadastro de Dotações",
      .searchLabel = "Pesquisar por Dotação:",
      .heads = {"ORDEM", "ADIANTAMENTO", "Orgão", "DOTAÇÃO", "ANO", "DESCRIÇÃO"},
      .twips = {1411, 5292, 3528, 2646, 2646, 5292},
      .words = usualWords(),
      .focusToInclude = "cmbSetor",
      .focusToAlter = "cmbSetor",
      .row = {"0003", "002 - Viagem", "002 - Educação", "127", "2014", "Passagens"},
      .loaded = {{"txtordem", "0003"},
                 {"cmbSetor", "Educação"},
                 {"cmbTipo", "Viagem"},
                 {"txtdotacao", "127"},
                 {"txtano", "2014"},
                 {"txtdescricao", "Passagens"}},
      .found = "127",
      .keys = {"0003"},
      .nothing = "12",
      .typed = {{"cmbSetor", "Saúde"},
                {"cmbTipo", "Miúdas"},
                {"txtdotacao", "1234"},
                {"txtdescricao", " Copo d'água "}},
      .newKey = "0004",
      .stored =
          "SELECT IDTIPO || '|' || IDORGAO || '|' || DOTACAO || '|' || ANO || '|' || DESCRICAO "
          "FROM Dotacao WHERE ID = 4",
      .storedNew = "1|1|1234|2014|Copo d'água",
      .reloaded = {{"txtordem", "0004"},
                   {"cmbSetor", "Saúde"},
                   {"cmbTipo", "Miúdas"},
                   {"txtdotacao", "1234"},
                   {"txtano", "2014"},
                   {"txtdescricao", "Copo d'água"}},
      .changed = {{"txtano", "1999"}, {"cmbSetor", "Educação"}, {"cmbTipo", "Viagem"}},
      .storedChanged = "2|2|1234|1999|Copo d'água",
      .text = {"txtdescricao", "Nova"},
      .required = nullptr,
      .requiredText = {},
      .searchRound = usualSearchRound(),
      .editRound = {"cmbSetor", "cmbTipo", "txtdotacao", "txtano", "txtdescricao", "Command2",
                    "Command1_0", "Command3"},
  };
}

// One page; its "OK" only closes the window.
inline ReferenceTable clauses() {
  return {
      .name = "clauses",
      .open = make<frmLei>,
      .rows =
          "INSERT INTO Inciso(ID, TIPO, DESCRICAO, CATEGORIA, PRAZO, ATIVO) VALUES "
          "(1, 1, 'Viagens', 'Serviço', 30, 0), (2, 1, 'Cursos', 'Serviço', 60, 0), "
          "(3, 1, 'Pronto pagamento', 'Consumo', 5, 1)",
      .title = "Inciso",
      .searchLabel = {},
      .heads = {"SEQ", "TIPO", "DESCRIÇÃO", "CATEGORIA", "DIAS"},
      .twips = {1411, 2646, 9701, 2540, 1411},
      .ticks = true,
      .words = {{"Command1_3", "Incluir"},
                {"Command3", "Gravar"},
                {"Command1_1", "Alterar"},
                {"Command1_0", "Cancel"},
                {"Command2", "OK"}},
      .save = "Command3",
      .leave = "Command2",
      .leavingAsks = true,
      .focusToInclude = "Combo1",
      .focusToAlter = "Combo1",
      .row = {"0003", "001 - Miúdas", "Pronto pagamento", "Consumo", "5"},
      .loaded = {{"Text1", "0003"},
                 {"Combo1", "Miúdas"},
                 {"Text3", "001"},
                 {"Text2", "Pronto pagamento"},
                 {"Text4", "Consumo"},
                 {"Combo4", "5"},
                 {"Check1", "x"}},
      .found = {},
      .keys = {},
      .nothing = {},
      .typed = {{"Combo1", "Miúdas"},
                {"Text2", " Copo d'água "},
                {"Text4", " Serviço "},
                {"Combo4", "15"},
                {"Check1", "x"}},
      .newKey = "0004",
      .stored =
          "SELECT TIPO || '|' || DESCRICAO || '|' || CATEGORIA || '|' || PRAZO || '|' || ATIVO "
          "FROM Inciso WHERE ID = 4",
      .storedNew = "1|Copo d'água|Serviço|15|1",
      .reloaded = {{"Text1", "0004"},
                   {"Combo1", "Miúdas"},
                   {"Text3", "001"},
                   {"Text2", "Copo d'água"},
                   {"Text4", "Serviço"},
                   {"Combo4", "15"},
                   {"Check1", "x"}},
      .changed = {{"Text2", "Água"}, {"Check1", "x"}},
      .storedChanged = "1|Água|Serviço|15|0",
      .text = {"Text2", "Nova"},
      .required = nullptr,
      .requiredText = {},
      .searchRound = {"ListView1", "Command2", "Command1_3", "Command1_1"},
      .editRound = {"Combo1", "Text2", "Text4", "Combo4", "Check1", "Command3", "Command1_0",
                    "ListView1", "Command2", "Text1"},
  };
}

inline const QList<ReferenceTable>& referenceTables() {
  static const QList<ReferenceTable> tables{secretariats(), purposes(),    orderers(), persons(),
                                            types(),        allocations(), clauses()};
  return tables;
}

}  // namespace quartela::test
