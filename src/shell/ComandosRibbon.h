// The commands of the main window's ribbon: its tabs, categories and buttons, in the order in which
// they stand on the screen. Keys are not in numeric order, and the images follow neither.
#pragma once

#include <array>

namespace quartela {

struct GuiaRibbon {
  const char* chave;
  const char* titulo;
};

struct CategoriaRibbon {
  const char* chave;
  const char* guia;
  const char* titulo;
};

struct BotaoRibbon {
  const char* chave;
  const char* categoria;
  const char* titulo;  // two lines
  int imagem;
};

inline constexpr std::array kGuias{
    GuiaRibbon{"1", "Início"},
    GuiaRibbon{"2", "Documentos"},
    GuiaRibbon{"3", "Referências"},
    GuiaRibbon{"4", "Ferramentas"},
};

inline constexpr std::array kCategorias{
    CategoriaRibbon{"1A", "1", "Requisição"},       CategoriaRibbon{"1B", "1", "Pesquisar"},
    CategoriaRibbon{"1C", "1", "Exibir Processos"}, CategoriaRibbon{"2A", "2", "Planilhas"},
    CategoriaRibbon{"2B", "2", "Extras"},           CategoriaRibbon{"3A", "3", "Essenciais"},
    CategoriaRibbon{"3B", "3", "Complementares"},   CategoriaRibbon{"4A", "4", "Sistema"},
    CategoriaRibbon{"4B", "4", "Importar"},
};

inline constexpr std::array kBotoes{
    BotaoRibbon{"0", "1A", "Incluir\r\nRequisição", 1},
    BotaoRibbon{"1", "1A", "Alterar\r\nRequisição", 2},
    BotaoRibbon{"2", "1A", "Exluir\r\nRequisição", 3},
    BotaoRibbon{"6", "1A", "Requisição\r\nAvulso", 30},
    BotaoRibbon{"3", "1B", "Processos\r\nem Alerta", 13},
    BotaoRibbon{"4", "1B", "Localizar\r\nRequisição", 4},
    BotaoRibbon{"18", "1C", "Iniciados\r\n(só Requisição)", 19},
    BotaoRibbon{"19", "1C", "Abertos\r\n(c/Empenho)", 18},
    BotaoRibbon{"20", "1C", "Encerrados\r\n(Arquivo)", 20},
    BotaoRibbon{"21", "1C", "Todos os\r\nProcessos", 21},
    BotaoRibbon{"22", "1C", "Iniciados\r\ne Abertos", 22},
    BotaoRibbon{"5", "2A", "Planilha de\r\nTransporte", 5},
    BotaoRibbon{"23", "2B", "Imprimir\r\nDocumentos", 24},
    BotaoRibbon{"24", "2B", "Listagem\r\nProcessos", 15},
    BotaoRibbon{"9", "3A", "Ordenador de\r\nDespesas", 9},
    BotaoRibbon{"10", "3A", "Responsáveis\r\npelos Recursos", 28},
    BotaoRibbon{"11", "3B", "Tipos de\r\nProcessos", 11},
    BotaoRibbon{"12", "3B", "Tipos de\r\nAdiantamentos", 12},
    BotaoRibbon{"13", "3B", "Fontes de\r\nRecursos", 10},
    BotaoRibbon{"25", "3B", "Secretarias\r\nOrgão", 29},
    BotaoRibbon{"14", "4A", "Backup\r\nde Dados", 14},
    BotaoRibbon{"15", "4A", "Configurações\r\ndo Sistema", 23},
    BotaoRibbon{"16", "4A", "Troca de\r\nSenha", 16},
    BotaoRibbon{"17", "4B", "Importação\r\nde Dados", 17},
};

}  // namespace quartela
