#include "shell/Comandos.h"

#include <algorithm>
#include <array>

#include "foundation/Rotinas.h"
#include "foundation/UmaJanela.h"
#include "foundation/frmConfigura.h"
#include "masterdata/frmDotacao.h"
#include "masterdata/frmExecutor.h"
#include "masterdata/frmLei.h"
#include "masterdata/frmOrgao.h"
#include "masterdata/frmTipoDespesa.h"
#include "masterdata/frmTipos.h"
#include "masterdata/frmTomador.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Format.h"
#include "records/Principal.h"
#include "records/cTodos.h"
#include "screens/frmAviso.h"
#include "screens/frmCadastro.h"
#include "screens/frmLocalizar.h"
#include "screens/frmReqAvulso.h"
#include "shell/frmOficce.h"

namespace quartela {
namespace {

constexpr std::int16_t kInclui = 0;
constexpr std::int16_t kAltera = -1;
constexpr std::int16_t kPorNumero = 6;

// Closes the window where it is open.
template <typename Janela>
bool estava_aberta() {
  return FormAberto(QString::fromLatin1(Janela::staticMetaObject.className()).section(':', -1));
}

// The button of a window that is open closes it.
template <typename Janela>
void alterna(frmOficce&) {
  if (!estava_aberta<Janela>()) {
    UmaJanela<Janela>::mostra();
  }
}

void inclui_processo(frmOficce&) {
  if (!estava_aberta<frmCadastro>()) {
    ModoAlteracao = kInclui;
    UmaJanela<frmCadastro>::mostra();
  }
}

void altera_processo(frmOficce&) {
  if (!estava_aberta<frmCadastro>() && !Tag_principal.isEmpty()) {
    ModoAlteracao = kAltera;
    UmaJanela<frmCadastro>::mostra();
  }
}

void exclui_processo(frmOficce& janela) {
  janela.Exclui_processo();
}

void mostra_alerta(frmOficce&) {
  mostra_frmAviso();
}

void configura(frmOficce&) {
  mostra_frmConfigura();
}

void nao_disponivel(frmOficce&) {
  Dialogs::information(QStringLiteral("Não disponivel no momento"));
}

constexpr std::array kGuias{
    GuiaRibbon{"1", "Início"},
    GuiaRibbon{"2", "Documentos"},
    GuiaRibbon{"3", "Referências"},
    GuiaRibbon{"4", "Ferramentas"},
};

constexpr std::array kCategorias{
    CategoriaRibbon{"1A", "1", "Requisição"},       CategoriaRibbon{"1B", "1", "Pesquisar"},
    CategoriaRibbon{"1C", "1", "Exibir Processos"}, CategoriaRibbon{"2A", "2", "Planilhas"},
    CategoriaRibbon{"2B", "2", "Extras"},           CategoriaRibbon{"3A", "3", "Essenciais"},
    CategoriaRibbon{"3B", "3", "Complementares"},   CategoriaRibbon{"4A", "4", "Sistema"},
    CategoriaRibbon{"4B", "4", "Importar"},
};

constexpr std::array kComandos{
    Comando{"0", "1A", "Incluir\r\nRequisição", 1, inclui_processo},
    Comando{.chave = "1",
            .categoria = "1A",
            .titulo = "Alterar\r\nRequisição",
            .imagem = 2,
            .acao = altera_processo,
            .menu = "&Alterar requisição",
            .tecla = "Enter",
            .da_linha = true},
    Comando{.chave = "2",
            .categoria = "1A",
            .titulo = "Exluir\r\nRequisição",
            .imagem = 3,
            .acao = exclui_processo,
            .menu = "&Excluir requisição",
            .tecla = "Del",
            .da_linha = true},
    Comando{"6", "1A", "Requisição\r\nAvulso", 30, alterna<frmReqAvulso>},
    Comando{"3", "1B", "Processos\r\nem Alerta", 13, mostra_alerta},
    Comando{"4", "1B", "Localizar\r\nRequisição", 4, alterna<frmLocalizar>},
    Comando{"18", "1C", "Iniciados\r\n(só Requisição)", 19, nullptr, 4},
    Comando{"19", "1C", "Abertos\r\n(c/Empenho)", 18, nullptr, 2},
    Comando{"20", "1C", "Encerrados\r\n(Arquivo)", 20, nullptr, 3},
    Comando{"21", "1C", "Todos os\r\nProcessos", 21, nullptr, 0},
    Comando{"22", "1C", "Iniciados\r\ne Abertos", 22, nullptr, 1},
    Comando{"5", "2A", "Planilha de\r\nTransporte", 5},
    Comando{"23", "2B", "Imprimir\r\nDocumentos", 24, nao_disponivel},
    Comando{"24", "2B", "Listagem\r\nProcessos", 15},
    Comando{"9", "3A", "Ordenador de\r\nDespesas", 9, alterna<frmExecutor>},
    Comando{"10", "3A", "Responsáveis\r\npelos Recursos", 28, alterna<frmTomador>},
    Comando{"11", "3B", "Tipos de\r\nProcessos", 11, alterna<frmTipos>},
    Comando{"12", "3B", "Tipos de\r\nAdiantamentos", 12, alterna<frmTipoDespesa>},
    Comando{"13", "3B", "Fontes de\r\nRecursos", 10, alterna<frmDotacao>},
    Comando{"25", "3B", "Secretarias\r\nOrgão", 29, alterna<frmOrgao>},
    Comando{"14", "4A", "Backup\r\nde Dados", 14},
    Comando{"15", "4A", "Configurações\r\ndo Sistema", 23, configura},
    Comando{"16", "4A", "Troca de\r\nSenha", 16},
    Comando{"17", "4B", "Importação\r\nde Dados", 17},
    Comando{.chave = "incisos", .acao = alterna<frmLei>, .menu = "&Incisos", .atalho = "Ctrl+I"},
};

template <typename Condicao>
const Comando* procura(const Condicao& condicao) {
  const auto achado = std::find_if(kComandos.begin(), kComandos.end(), condicao);
  return achado == kComandos.end() ? nullptr : &*achado;
}

}  // namespace

std::span<const GuiaRibbon> guias() {
  return kGuias;
}

std::span<const CategoriaRibbon> categorias() {
  return kCategorias;
}

std::span<const Comando> comandos() {
  return kComandos;
}

const Comando* comando(const QString& chave) {
  return procura([&chave](const Comando& c) { return chave == QLatin1String(c.chave); });
}

void executa(const Comando& comando, frmOficce& janela) {
  if (comando.filtro) {
    janela.filtra(*comando.filtro);
  } else if (comando.acao != nullptr) {
    comando.acao(janela);
  }
}

QString nome_do_filtro(std::int16_t codigo) {
  const Comando* const filtro = procura([codigo](const Comando& c) { return c.filtro == codigo; });
  if (filtro != nullptr) {
    return QString::fromUtf8(filtro->titulo).replace(QStringLiteral("\r\n"), QStringLiteral(" "));
  }
  const cTodos& todos = cTodos::compartilhada();
  return codigo == kPorNumero ? QStringLiteral("processo ") + Format(Value(todos.Seq), u"0000/00")
                              : QStringLiteral("nome com “") + todos.Nome + QStringLiteral("”");
}

}  // namespace quartela
