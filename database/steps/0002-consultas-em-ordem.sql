-- What the first delivery has differently. The day of a transport sheet is a text as it was written; the
-- stored queries have an order of their own; two delivered purposes were longer than their field.
CREATE TABLE IdentificaTransp_nova (
  ITEM INTEGER PRIMARY KEY AUTOINCREMENT CHECK (ITEM BETWEEN 1 AND 2147483647),
  PLANILHA SMALLINT
    CHECK (typeof(PLANILHA) IN ('integer', 'null') AND PLANILHA BETWEEN -32768 AND 32767),
  PROCESSO INTEGER
    CHECK (typeof(PROCESSO) IN ('integer', 'null') AND PROCESSO BETWEEN -2147483648 AND 2147483647),
  DATA TEXT CHECK (typeof(DATA) IN ('text', 'null')),
  DESTINO TEXT CHECK (typeof(DESTINO) IN ('text', 'null')),
  LOCALIDADE TEXT CHECK (typeof(LOCALIDADE) IN ('text', 'null')),
  "VEÍCULO" TEXT CHECK (typeof("VEÍCULO") IN ('text', 'null')),
  PLACA TEXT CHECK (typeof(PLACA) IN ('text', 'null')),
  HSAIDA INTEGER
    CHECK (typeof(HSAIDA) IN ('integer', 'null') AND HSAIDA BETWEEN -2147483648 AND 2147483647),
  HCHEGADA INTEGER
    CHECK (typeof(HCHEGADA) IN ('integer', 'null') AND HCHEGADA BETWEEN -2147483648 AND 2147483647),
  MOTORISTA TEXT CHECK (typeof(MOTORISTA) IN ('text', 'null')),
  ACOMPANHANTE TEXT CHECK (typeof(ACOMPANHANTE) IN ('text', 'null')),
  OBS TEXT CHECK (typeof(OBS) IN ('text', 'null')),
  MOTIVO TEXT CHECK (typeof(MOTIVO) IN ('text', 'null'))
);
INSERT INTO IdentificaTransp_nova
SELECT ITEM, PLANILHA, PROCESSO, strftime('%d/%m/%Y', DATA), DESTINO, LOCALIDADE, "VEÍCULO", PLACA, HSAIDA,
       HCHEGADA, MOTORISTA, ACOMPANHANTE, OBS, MOTIVO
FROM IdentificaTransp;
-- The count of the keys given goes along: no key is given twice.
DELETE FROM sqlite_sequence WHERE name = 'IdentificaTransp_nova';
UPDATE sqlite_sequence SET name = 'IdentificaTransp_nova' WHERE name = 'IdentificaTransp';
DROP TABLE IdentificaTransp;
ALTER TABLE IdentificaTransp_nova RENAME TO IdentificaTransp;
CREATE INDEX IdentificaTransp_PROCESSO_PLANILHA ON IdentificaTransp (PROCESSO, PLANILHA);

DROP INDEX Requisicao_DATA;
DROP INDEX Cidades_uf_nome;
DROP INDEX Cidades_nome;
CREATE INDEX Cidades_nome ON Cidades (nome COLLATE NOCASE);
UPDATE Consultas SET TEXTO = 'SELECT Dotacao.ID, Dotacao.IDTIPO, Dotacao.DOTACAO, Dotacao.ANO, Dotacao.DESCRICAO, Tipos.TIPO,
       Dotacao.IDORGAO, Orgao.ORGAO
FROM (Dotacao LEFT JOIN Tipos ON Dotacao.IDTIPO = Tipos.SEQUENCIA)
     LEFT JOIN Orgao ON Dotacao.IDORGAO = Orgao.IDORGAO
ORDER BY Dotacao.ID;
' WHERE NOME = 'Sel_Dotacao';
UPDATE Consultas SET TEXTO = 'SELECT Requisicao.SEQ, Adiantamento.EMPENHO, Adiantamento.ABERTURA, Adiantamento.RETIRADA,
       Executor.NOME, Tomador.NOME1, Tomador.CARGO, Orgao.ORGAO, Requisicao.VALOR
FROM (((Requisicao INNER JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO)
     LEFT JOIN Executor ON Requisicao.ORGAO = Executor.ORDEM)
     LEFT JOIN Orgao ON Executor.IDORGAO = Orgao.IDORGAO)
     LEFT JOIN Tomador ON Requisicao.TOMADOR = Tomador.ID
ORDER BY Requisicao.SEQ, Adiantamento.EMPENHO;
' WHERE NOME = 'Sel_Planilha';
UPDATE Consultas SET TEXTO = 'SELECT Requisicao.SEQ, Requisicao.DATA, Requisicao.VALOR, Requisicao.JUSTIFICATIVA, Requisicao.FICHA,
       Orgao.ORGAO, Tomador.NOME1, Tomador.RG1, Tomador.CPF1, Tomador.CARGO,
       Executor.NOME, Executor.RG, Executor.CPF, Executor.FUNCAO,
       Tipos.TIPO, Tipos.ELEMENTO, Tipos.LEI, Tipos.MATERIAIS, Tipos.PRAZO
FROM (((Requisicao LEFT JOIN Executor ON Requisicao.ORGAO = Executor.ORDEM)
     LEFT JOIN Orgao ON Executor.IDORGAO = Orgao.IDORGAO)
     LEFT JOIN Tomador ON Requisicao.TOMADOR = Tomador.ID)
     LEFT JOIN Tipos ON Requisicao.FINALIDADE = Tipos.SEQUENCIA
ORDER BY Requisicao.SEQ;
' WHERE NOME = 'Sel_Print_req';
UPDATE Consultas SET TEXTO = 'SELECT ReqAvulso.SEQ, ReqAvulso.DATA, ReqAvulso.VALOR, ReqAvulso.JUSTIFICATIVA, ReqAvulso.FICHA,
       Orgao.ORGAO, Tomador.NOME1, Tomador.RG1, Tomador.CPF1, Tomador.CARGO,
       Executor.NOME, Executor.RG, Executor.CPF, Executor.FUNCAO,
       Tipos.TIPO, Tipos.ELEMENTO, Tipos.LEI, Tipos.MATERIAIS, Tipos.PRAZO
FROM (((ReqAvulso LEFT JOIN Executor ON ReqAvulso.ORGAO = Executor.ORDEM)
     LEFT JOIN Orgao ON Executor.IDORGAO = Orgao.IDORGAO)
     LEFT JOIN Tomador ON ReqAvulso.TOMADOR = Tomador.ID)
     LEFT JOIN Tipos ON ReqAvulso.FINALIDADE = Tipos.SEQUENCIA
ORDER BY ReqAvulso.SEQ;
' WHERE NOME = 'Sel_Print_reqavulso';
UPDATE Consultas SET TEXTO = 'SELECT Requisicao.SEQ, Requisicao.DATA, Requisicao.VALOR, Requisicao.FINALIDADE, Orgao.ORGAO,
       Tomador.NOME1, Tipos.TIPO, Adiantamento.EMPENHO, Adiantamento.ABERTURA,
       Adiantamento.RETIRADA, Adiantamento.FECHAR_EM, Adiantamento.FECHAMENTO,
       (Adiantamento.FECHAMENTO - Adiantamento.RETIRADA) AS DIAS
FROM ((((Requisicao INNER JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO)
     LEFT JOIN Executor ON Requisicao.ORGAO = Executor.ORDEM)
     LEFT JOIN Orgao ON Executor.IDORGAO = Orgao.IDORGAO)
     LEFT JOIN Tomador ON Requisicao.TOMADOR = Tomador.ID)
     LEFT JOIN Tipos ON Requisicao.FINALIDADE = Tipos.SEQUENCIA
ORDER BY Requisicao.SEQ, Adiantamento.EMPENHO;
' WHERE NOME = 'Sel_Req_inner';
UPDATE Consultas SET TEXTO = 'SELECT Requisicao.SEQ, Requisicao.DATA, Requisicao.VALOR, Requisicao.FINALIDADE, Orgao.ORGAO,
       Tomador.NOME1, Tipos.TIPO, Adiantamento.EMPENHO, Adiantamento.ABERTURA,
       Adiantamento.RETIRADA, Adiantamento.FECHAR_EM, Adiantamento.FECHAMENTO,
       (Adiantamento.FECHAMENTO - Adiantamento.RETIRADA) AS DIAS
FROM ((((Requisicao LEFT JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO)
     LEFT JOIN Executor ON Requisicao.ORGAO = Executor.ORDEM)
     LEFT JOIN Orgao ON Executor.IDORGAO = Orgao.IDORGAO)
     LEFT JOIN Tomador ON Requisicao.TOMADOR = Tomador.ID)
     LEFT JOIN Tipos ON Requisicao.FINALIDADE = Tipos.SEQUENCIA
ORDER BY Requisicao.SEQ, Adiantamento.EMPENHO;
' WHERE NOME = 'Sel_Req_left';
UPDATE Consultas SET TEXTO = 'SELECT Viagem.ITEM, Viagem.ORGAO, Viagem.VEICULO, Viagem.MOTIVO, Viagem.LOCALIDADE,
       Viagem.DISTANCIA, Viagem.PLACA, Viagem.DATA_SAIDA, Viagem.DATA_CHEGADA, Viagem.HSAIDA,
       Viagem.HCHEGADA, Viagem.DESTINO, Viagem.UF, Viagem.PARTICIPANTES, Viagem.OBS,
       Viagem.MOTORISTA
FROM Viagem
ORDER BY Viagem.ITEM;
' WHERE NOME = 'Sel_Viagem';

UPDATE Finalidade SET FINALIDADE = 'Trat. fora domicílio' WHERE ID = 9 AND FINALIDADE = 'Tratamento fora do domicílio';
UPDATE Finalidade SET FINALIDADE = 'Manutenção veicular' WHERE ID = 10 AND FINALIDADE = 'Manutenção de veículos';
