// The ribbon of the main window as its operators know it, written down for the tests alone: tabs,
// categories and buttons in the order in which they stand on the screen.
#pragma once

#include <array>

namespace quartela::test {

struct ToldTab {
  const char* key;
  const char* caption;
};

struct ToldCategory {
  const char* key;
  const char* tab;
  const char* caption;
};

struct ToldButton {
  const char* key;
  const char* category;
  const char* caption;  // two lines
  int image;
};

inline constexpr std::array kTabs{
    ToldTab{"1", "Início"},
    ToldTab{"2", "Documentos"},
    ToldTab{"3", "Referências"},
    ToldTab{"4", "Ferramentas"},
};

inline constexpr std::array kCategories{
    ToldCategory{"1A", "1", "Requisição"},       ToldCategory{"1B", "1", "Pesquisar"},
    ToldCategory{"1C", "1", "Exibir Processos"}, ToldCategory{"2A", "2", "Planilhas"},
    ToldCategory{"2B", "2", "Extras"},           ToldCategory{"3A", "3", "Essenciais"},
    ToldCategory{"3B", "3", "Complementares"},   ToldCategory{"4A", "4", "Sistema"},
    ToldCategory{"4B", "4", "Importar"},
};

inline constexpr std::array kButtons{
    ToldButton{"0", "1A", "Incluir\r\nRequisição", 1},
    ToldButton{"1", "1A", "Alterar\r\nRequisição", 2},
    ToldButton{"2", "1A", "Exluir\r\nRequisição", 3},
    ToldButton{"6", "1A", "Requisição\r\nAvulso", 30},
    ToldButton{"3", "1B", "Processos\r\nem Alerta", 13},
    ToldButton{"4", "1B", "Localizar\r\nRequisição", 4},
    ToldButton{"18", "1C", "Iniciados\r\n(só Requisição)", 19},
    ToldButton{"19", "1C", "Abertos\r\n(c/Empenho)", 18},
    ToldButton{"20", "1C", "Encerrados\r\n(Arquivo)", 20},
    ToldButton{"21", "1C", "Todos os\r\nProcessos", 21},
    ToldButton{"22", "1C", "Iniciados\r\ne Abertos", 22},
    ToldButton{"5", "2A", "Planilha de\r\nTransporte", 5},
    ToldButton{"23", "2B", "Imprimir\r\nDocumentos", 24},
    ToldButton{"24", "2B", "Listagem\r\nProcessos", 15},
    ToldButton{"9", "3A", "Ordenador de\r\nDespesas", 9},
    ToldButton{"10", "3A", "Responsáveis\r\npelos Recursos", 28},
    ToldButton{"11", "3B", "Tipos de\r\nProcessos", 11},
    ToldButton{"12", "3B", "Tipos de\r\nAdiantamentos", 12},
    ToldButton{"13", "3B", "Fontes de\r\nRecursos", 10},
    ToldButton{"25", "3B", "Secretarias\r\nOrgão", 29},
    ToldButton{"14", "4A", "Backup\r\nde Dados", 14},
    ToldButton{"15", "4A", "Configurações\r\ndo Sistema", 23},
    ToldButton{"16", "4A", "Troca de\r\nSenha", 16},
    ToldButton{"17", "4B", "Importação\r\nde Dados", 17},
};

}  // namespace quartela::test
