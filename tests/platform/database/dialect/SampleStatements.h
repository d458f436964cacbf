// The statements that the program makes, with samples of what operators type and pick.
#pragma once

#include <array>

namespace quartela::test {

inline constexpr std::array kSampleStatements{
    "SELECT @@IDENTITY",
    "Requisicao",
    "Sel_Uf",
    "SELECT TOP 1 HISTORICO FROM PrestContas WHERE HISTORICO Like 'posto%' ORDER BY HISTORICO  "
    "Asc;",
    "SELECT TOP 1 Nome FROM Cidades WHERE Nome Like 'São%' ORDER BY Nome  Asc;",
    "SELECT * FROM Tomador WHERE ATIVO = Yes;",
    "SELECT * FROM Orgao ORDER BY Orgao;",
    "SELECT Max(IdentificaTransp.PLANILHA) AS Id FROM IdentificaTransp WHERE "
    "IdentificaTransp.PROCESSO = 514",
    "SELECT Max(IdentificaTransp.ITEM) AS Id FROM IdentificaTransp;",
    "Select * from Requisicao WHERE SEQ =514",
    "DELETE FROM Requisicao where SEQ = 514",
    "SELECT Requisicao.TOMADOR, Requisicao.FINALIDADE, Adiantamento.FECHAMENTO FROM Requisicao "
    "LEFT JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO  WHERE Requisicao.TOMADOR =3 "
    "And Requisicao.Finalidade = 2 AND ((Adiantamento.FECHAMENTO) Is Null);",
    "Select Requisicao.*, Executor.IDORGAO From Requisicao, Executor WHERE Requisicao.ORGAO = "
    "Executor.ORDEM AND SEQ =514",
    "DELETE FROM Adiantamento where EMPENHO = 12314",
    "select * from Adiantamento WHERE Adiantamento.EMPENHO =12314",
    "SELECT Adiantamento.EMPENHO, Adiantamento.ABERTURA, Adiantamento.RETIRADA, "
    "Adiantamento.FECHAR_EM, Adiantamento.FECHAMENTO, Adiantamento.DEVOLUCAO, "
    "Adiantamento.DATADEV, Adiantamento.OP, Adiantamento.ANULADO From Adiantamento WHERE "
    "Adiantamento.PROCESSO =514",
    "SELECT DISTINCTROW Sum(PrestContas.DESPESAS) AS [Soma De DESPESAS] From PrestContas GROUP BY "
    "PrestContas.PROCESSO HAVING PrestContas.PROCESSO =12314",
    "Select EMPENHO, FECHAMENTO, DEVOLUCAO, DATADEV From Adiantamento WHERE EMPENHO =12314",
    "Select * From Sel_Planilha WHERE Requisicao.SEQ =514",
    "DELETE FROM PrestContas where SEQ = 7",
    "DELETE From PrestContas WHERE PROCESSO =12314",
    "SELECT PrestContas.SEQ, PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, "
    "PrestContas.DESPESAS From PrestContas Where PrestContas.Processo =12314 ORDER BY "
    "PrestContas.DATA, PrestContas.SEQ;",
    "SELECT Executor.ORDEM, Executor.NOME, Orgao.IDORGAO FROM Orgao INNER JOIN Executor ON "
    "Orgao.IDORGAO = Executor.IDORGAO WHERE Orgao.IDORGAO = 4 AND ATIVO = True;",
    "SELECT Executor.ORDEM, Executor.NOME, Orgao.IDORGAO FROM Orgao INNER JOIN Executor ON "
    "Orgao.IDORGAO = Executor.IDORGAO WHERE Orgao.IDORGAO = 4 ;",
    "SELECT Tipos.SEQUENCIA, Tipos.TIPO, Orgao.IDORGAO FROM Tipos, Orgao WHERE Orgao.IDORGAO = "
    "Tipos.IDORGAO AND Orgao.IDORGAO = 4;",
    "Select * from Tomador Where ATIVO = True ORDER BY NOME1;",
    "SELECT Dotacao.ID, Dotacao.DOTACAO, Tipos.IDORGAO, Dotacao.ANO, Tipos.SEQUENCIA FROM Tipos, "
    "Dotacao WHERE Tipos.SEQUENCIA = Dotacao.IDTIPO AND Tipos.SEQUENCIA = 2 AND Dotacao.ANO "
    "=Year(Now()) ;",
    "SELECT DISTINCT DOTACAO FROM Dotacao WHERE IDTIPO = 2 AND ANO = YEAR(Now());",
    "Select * from Sel_Print_req WHERE Requisicao.SEQ = 514",
    "Select * from PrestContas Where PROCESSO = 12314 Order by DATA, SEQ;",
    "SELECT * FROM Sel_Req_left  ORDER BY Adiantamento.ABERTURA DESC;",
    "SELECT * FROM Sel_Req_left  Where (((Adiantamento.Fechamento) Is Null) And "
    "((Year([Requisicao].[Data])) = Year(Now()))) ORDER BY Requisicao.SEQ DESC;",
    "SELECT * FROM Sel_Req_inner  WHERE ((Adiantamento.FECHAMENTO) Is Null);",
    "SELECT * FROM Sel_Req_left  WHERE (((Adiantamento.FECHAMENTO) Is Not Null) And "
    "((Year([Requisicao].[Data])) = Year(Now())));",
    "SELECT * FROM Sel_Req_left  Where (((Adiantamento.ABERTURA) Is Null) And "
    "((Year([Requisicao].[Data])) = Year(Now()))) ORDER BY Requisicao.SEQ DESC;",
    "SELECT * FROM Sel_Req_left  WHERE Tomador.NOME1 LIKE '%joão%';",
    "SELECT * FROM Sel_Req_left  WHERE Requisicao.SEQ =514",
    "SELECT * FROM Sel_Req_left  WHERE (((Tomador.NOME1) Like '%joão%') And "
    "((Adiantamento.FECHAMENTO) Is Null) And ((Year(Requisicao.DATA))=Year(Now())));",
    "SELECT * FROM Sel_Req_inner  WHERE (((Tomador.NOME1) Like '%joão%') AND "
    "((Adiantamento.FECHAMENTO) Is Null));",
    "SELECT * FROM Sel_Req_left  WHERE (((Tomador.NOME1) Like '%joão%') AND "
    "((Adiantamento.FECHAMENTO) Is Not Null));",
    "SELECT Adiantamento.EMPENHO, Tomador.NOME1, Tipos.TIPO, Requisicao.VALOR, "
    "Adiantamento.RETIRADA, Adiantamento.FECHAR_EM , Adiantamento.ABERTURA, Tomador.CARGO, "
    "Adiantamento.PROCESSO FROM Tomador INNER JOIN (Tipos INNER JOIN (Requisicao INNER JOIN "
    "Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO) ON Tipos.SEQUENCIA = "
    "Requisicao.FINALIDADE) ON Tomador.ID = Requisicao.TOMADOR WHERE (((Adiantamento.RETIRADA) Is "
    "Not Null) AND ((Adiantamento.FECHAMENTO) Is Null));",
    "SELECT Adiantamento.EMPENHO, Tomador.NOME1 FROM Tomador INNER JOIN (Tipos INNER JOIN "
    "(Requisicao INNER JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO) ON "
    "Tipos.SEQUENCIA = Requisicao.FINALIDADE) ON Tomador.ID = Requisicao.TOMADOR WHERE "
    "(((Tipos.TIPO) Like '%miúdas%') AND ((Adiantamento.FECHAMENTO) Is Null));",
    "SELECT Requisicao.SEQ, Executor.NOME, Tipos.TIPO, Adiantamento.FECHAR_EM FROM Tipos INNER "
    "JOIN ((Executor INNER JOIN Requisicao ON Executor.ORDEM = Requisicao.ORGAO) INNER JOIN "
    "Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO) ON Tipos.SEQUENCIA = "
    "Requisicao.FINALIDADE WHERE (((Adiantamento.FECHAR_EM)<Now()+6) AND "
    "((Adiantamento.FECHAMENTO) Is Null));",
    "Select * from Sel_Print_reqavulso WHERE ReqAvulso.SEQ = 31",
    "SELECT Orgao.IDORGAO, Orgao.Orgao FROM Orgao; ",
    "SELECT Orgao.IDORGAO, Orgao.Orgao FROM Orgao WHERE Orgao.ORGAO Like '%saúde%';",
    "SELECT Finalidade.ID, Finalidade.FINALIDADE FROM Finalidade WHERE FINALIDADE Like '%x%';",
    "Select NOME, RG, CPF, FUNCAO FROM Executor WHERE ORDEM =2",
    "SELECT Executor.ORDEM, Executor.IDORGAO, Executor.NOME, Executor.RG, Executor.CPF, "
    "Executor.FUNCAO, Executor.ATIVO, Orgao.ORGAO FROM Executor, Orgao WHERE Executor.IDORGAO = "
    "Orgao.IDORGAO AND Executor.NOME Like '%ana%';",
    "SELECT Tomador.ID, Tomador.NOME1, Tomador.CARGO, Tomador.RG1, Tomador.CPF1, Tomador.ATIVO "
    "FROM "
    "Tomador Where Tomador.NOME1 Like '%ana%';",
    "Select CATEGORIA, PRAZO FROM Inciso WHERE ID =1",
    "Select SEQUENCIA, TIPO From Tipos Where ATIVO = True AND IDORGAO =4",
    "SELECT Tipos.SEQUENCIA, Orgao.IDORGAO, Orgao.ORGAO, Tipos.TIPO, Tipos.ELEMENTO, Tipos.PRAZO, "
    "Tipos.ATIVO FROM Orgao INNER JOIN Tipos ON Orgao.IDORGAO = Tipos.IDORGAO WHERE Orgao.ORGAO "
    "Like '%obras%';",
    "SELECT Inciso.ID, Inciso.TIPO, Tipos.TIPO, Inciso.DESCRICAO, Inciso.CATEGORIA, Inciso.PRAZO, "
    "Inciso.ATIVO FROM Tipos INNER JOIN Inciso ON Tipos.SEQUENCIA = Inciso.TIPO;",
    "SELECT * From Sel_Dotacao;",
    "SELECT * From Sel_Dotacao WHERE Dotacao.DOTACAO =15",
    "SELECT Viagem.Item, Viagem.Data_saida, Viagem.Destino FROM Viagem where "
    "Viagem.processo=12314",
    "SELECT PrestContas.SEQ, PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, "
    "PrestContas.DESPESAS From PrestContas Where PrestContas.Processo =12314 AND "
    "PrestContas.ID_VIAGEM = 3 ORDER BY PrestContas.DATA, PrestContas.SEQ;",
    "Select DISTINCT * from Cidades where uf = 'SP'",
    "Select distancia from Cidades where id = 12",
    "SELECT Sel_Viagem.*, PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, "
    "PrestContas.DESPESAS FROM Sel_Viagem INNER JOIN PrestContas ON Sel_Viagem.ITEM = "
    "PrestContas.ID_VIAGEM WHERE (((Sel_Viagem.ITEM)=3)) Order By PrestContas.DATA;",
    "Select * From IdentificaTransp Where PROCESSO = 514 ORDER BY ITEM DESC;",
    "SELECT ItensTransp.IDENTIFICA, ItensTransp.DATADOC, ItensTransp.RAZAO, ItensTransp.DOCUMENTO, "
    "ItensTransp.VALOR FROM IdentificaTransp INNER JOIN ItensTransp ON "
    "IdentificaTransp.ITEM=ItensTransp.IDENT_TRANSP WHERE IdentificaTransp.Processo =514 ORDER BY "
    "ItensTransp.DATADOC, ItensTransp.IDENTIFICA;",
    "SELECT IdentificaTransp.DATA, IdentificaTransp.DESTINO, IdentificaTransp.LOCALIDADE, "
    "IdentificaTransp.VEÍCULO, IdentificaTransp.PLACA, IdentificaTransp.HSAIDA, "
    "IdentificaTransp.HCHEGADA, IdentificaTransp.MOTORISTA, IdentificaTransp.ACOMPANHANTE, "
    "IdentificaTransp.OBS, IdentificaTransp.MOTIVO, ItensTransp.DATADOC, ItensTransp.RAZAO, "
    "ItensTransp.DOCUMENTO, ItensTransp.VALOR FROM IdentificaTransp INNER JOIN ItensTransp ON "
    "IdentificaTransp.ITEM = ItensTransp.IDENT_TRANSP WHERE IdentificaTransp.ITEM = 9",
    "Select * From Produtos ORDER BY ITEM DESC;",
    "DELETE FROM Produtos where ITEM = 4",
    "SELECT Requisicao.VALOR, Requisicao.SEQ, Adiantamento.EMPENHO, Adiantamento.ABERTURA, "
    "Adiantamento.RETIRADA, Adiantamento.DATADEV, Adiantamento.DEVOLUCAO, Executor.NOME, "
    "Executor.FUNCAO FROM (Executor INNER JOIN Requisicao ON Executor.ORDEM = Requisicao.ORGAO) "
    "INNER JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO Where Adiantamento.EMPENHO "
    "= 12314",
    "SELECT PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, PrestContas.DESPESAS, "
    "Requisicao.VALOR FROM Requisicao INNER JOIN (Adiantamento INNER JOIN PrestContas ON "
    "Adiantamento.EMPENHO = PrestContas.PROCESSO) ON Requisicao.SEQ = Adiantamento.PROCESSO Where "
    "PrestContas.Processo = 12314 ORDER BY PrestContas.DATA;",
    "SELECT Requisicao.SEQ, Tomador.NOME1, Tipos.ELEMENTO, Adiantamento.ABERTURA, "
    "Adiantamento.EMPENHO, Adiantamento.RETIRADA, Adiantamento.FECHAR_EM, "
    "Adiantamento.FECHAMENTO, (Adiantamento.FECHAMENTO - Adiantamento.RETIRADA)AS DIAS FROM Tipos "
    "INNER JOIN ((Tomador INNER JOIN Requisicao ON Tomador.ID = Requisicao.TOMADOR) INNER JOIN "
    "Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO) ON Tipos.SEQUENCIA = "
    "Requisicao.FINALIDADE WHERE Adiantamento.ABERTURA Between #2014/01/01# AND #2014/12/31# "
    "ORDER BY Tomador.NOME1, Adiantamento.ABERTURA;",
};

// The longest of them: the listing of a period.
inline constexpr const char* kLongestStatement = kSampleStatements.back();

}  // namespace quartela::test
