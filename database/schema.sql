-- The tables, relations and indexes of a Quartela database. Plain SQLite: any tool can load it.
--
-- A column's declared type is the program's type of its values:
--   SMALLINT  whole number of 16 bits          INTEGER  whole number of 32 bits
--   MONEY     whole ten-thousandths of a real  DOUBLE   floating-point number
--   DATETIME  text 'YYYY-MM-DD HH:MM:SS'       BOOLEAN  0 or 1, never null
--   TEXT      text
-- CHECK constraints hold every column to its type and range. (The modifier '+0 days' lets
-- datetime() carry 30 February into March: only days of the calendar come back unchanged.) Only
-- keys and BOOLEAN columns refuse null, since a row may stand with empty fields.
--
-- Relations: a deleted requisition takes its advance along, a deleted advance its expense notes.
-- Rows of the reference tables that others refer to cannot be deleted. Travel and transport sheets
-- leave their notes and documents behind, so no relation is declared there.

PRAGMA application_id = 0x51544C41;
PRAGMA user_version = 3;

-- Secretariats.
CREATE TABLE Orgao (
  IDORGAO INTEGER PRIMARY KEY AUTOINCREMENT CHECK (IDORGAO BETWEEN 1 AND 2147483647),
  ORGAO TEXT CHECK (typeof(ORGAO) IN ('text', 'null'))
);

-- Expense orderers of the secretariats.
CREATE TABLE Executor (
  ORDEM INTEGER PRIMARY KEY AUTOINCREMENT CHECK (ORDEM BETWEEN 1 AND 2147483647),
  IDORGAO SMALLINT
    REFERENCES Orgao (IDORGAO) ON UPDATE CASCADE ON DELETE RESTRICT
    CHECK (typeof(IDORGAO) IN ('integer', 'null') AND IDORGAO BETWEEN -32768 AND 32767),
  NOME TEXT CHECK (typeof(NOME) IN ('text', 'null')),
  RG TEXT CHECK (typeof(RG) IN ('text', 'null')),
  CPF TEXT CHECK (typeof(CPF) IN ('text', 'null')),
  FUNCAO TEXT CHECK (typeof(FUNCAO) IN ('text', 'null')),
  ATIVO BOOLEAN NOT NULL DEFAULT 0 CHECK (typeof(ATIVO) = 'integer' AND ATIVO IN (0, 1))
);

-- Persons responsible for the money of an advance.
CREATE TABLE Tomador (
  ID INTEGER PRIMARY KEY AUTOINCREMENT CHECK (ID BETWEEN 1 AND 2147483647),
  NOME1 TEXT CHECK (typeof(NOME1) IN ('text', 'null')),
  CARGO TEXT CHECK (typeof(CARGO) IN ('text', 'null')),
  RG1 TEXT CHECK (typeof(RG1) IN ('text', 'null')),
  CPF1 TEXT CHECK (typeof(CPF1) IN ('text', 'null')),
  ATIVO BOOLEAN NOT NULL DEFAULT 0 CHECK (typeof(ATIVO) = 'integer' AND ATIVO IN (0, 1))
);

-- Advance types of a secretariat. PRAZO is "05 dias", "30 dias" or "60 dias".
CREATE TABLE Tipos (
  SEQUENCIA INTEGER PRIMARY KEY AUTOINCREMENT CHECK (SEQUENCIA BETWEEN 1 AND 2147483647),
  IDORGAO SMALLINT
    REFERENCES Orgao (IDORGAO) ON UPDATE CASCADE ON DELETE RESTRICT
    CHECK (typeof(IDORGAO) IN ('integer', 'null') AND IDORGAO BETWEEN -32768 AND 32767),
  TIPO TEXT CHECK (typeof(TIPO) IN ('text', 'null')),
  ELEMENTO TEXT CHECK (typeof(ELEMENTO) IN ('text', 'null')),
  LEI TEXT CHECK (typeof(LEI) IN ('text', 'null')),
  MATERIAIS TEXT CHECK (typeof(MATERIAIS) IN ('text', 'null')),
  PRAZO TEXT CHECK (typeof(PRAZO) IN ('text', 'null')),
  ATIVO BOOLEAN NOT NULL DEFAULT 0 CHECK (typeof(ATIVO) = 'integer' AND ATIVO IN (0, 1))
);

-- Legal clauses of an advance type; PRAZO in days.
CREATE TABLE Inciso (
  ID INTEGER PRIMARY KEY AUTOINCREMENT CHECK (ID BETWEEN 1 AND 2147483647),
  TIPO SMALLINT
    REFERENCES Tipos (SEQUENCIA) ON UPDATE CASCADE ON DELETE RESTRICT
    CHECK (typeof(TIPO) IN ('integer', 'null') AND TIPO BETWEEN -32768 AND 32767),
  DESCRICAO TEXT CHECK (typeof(DESCRICAO) IN ('text', 'null')),
  CATEGORIA TEXT CHECK (typeof(CATEGORIA) IN ('text', 'null')),
  PRAZO SMALLINT CHECK (typeof(PRAZO) IN ('integer', 'null') AND PRAZO BETWEEN -32768 AND 32767),
  ATIVO BOOLEAN NOT NULL DEFAULT 0 CHECK (typeof(ATIVO) = 'integer' AND ATIVO IN (0, 1))
);

-- Budget allocations of a year.
CREATE TABLE Dotacao (
  ID INTEGER PRIMARY KEY AUTOINCREMENT CHECK (ID BETWEEN 1 AND 2147483647),
  IDTIPO SMALLINT
    REFERENCES Tipos (SEQUENCIA) ON UPDATE CASCADE ON DELETE RESTRICT
    CHECK (typeof(IDTIPO) IN ('integer', 'null') AND IDTIPO BETWEEN -32768 AND 32767),
  IDORGAO SMALLINT
    REFERENCES Orgao (IDORGAO) ON UPDATE CASCADE ON DELETE RESTRICT
    CHECK (typeof(IDORGAO) IN ('integer', 'null') AND IDORGAO BETWEEN -32768 AND 32767),
  DOTACAO SMALLINT
    CHECK (typeof(DOTACAO) IN ('integer', 'null') AND DOTACAO BETWEEN -32768 AND 32767),
  DESCRICAO TEXT CHECK (typeof(DESCRICAO) IN ('text', 'null')),
  ANO SMALLINT CHECK (typeof(ANO) IN ('integer', 'null') AND ANO BETWEEN -32768 AND 32767)
);

-- Expense purposes, from which the names of advance types are picked.
CREATE TABLE Finalidade (
  ID INTEGER PRIMARY KEY AUTOINCREMENT CHECK (ID BETWEEN 1 AND 2147483647),
  FINALIDADE TEXT CHECK (typeof(FINALIDADE) IN ('text', 'null'))
);

-- Requests for an advance, one a process. SEQ is the running number of the year and, in its
-- last two digits, the year. ORGAO is the orderer, FINALIDADE the advance type.
CREATE TABLE Requisicao (
  SEQ INTEGER NOT NULL PRIMARY KEY CHECK (SEQ BETWEEN -2147483648 AND 2147483647),
  DATA DATETIME
    CHECK (typeof(DATA) IN ('text', 'null') AND length(DATA) = 19
           AND datetime(DATA, '+0 days') IS DATA
           AND substr(DATA, 1, 4) >= '0100'),
  ORGAO SMALLINT
    REFERENCES Executor (ORDEM) ON UPDATE CASCADE ON DELETE RESTRICT
    CHECK (typeof(ORGAO) IN ('integer', 'null') AND ORGAO BETWEEN -32768 AND 32767),
  TOMADOR SMALLINT
    REFERENCES Tomador (ID) ON UPDATE CASCADE ON DELETE RESTRICT
    CHECK (typeof(TOMADOR) IN ('integer', 'null') AND TOMADOR BETWEEN -32768 AND 32767),
  VALOR MONEY CHECK (typeof(VALOR) IN ('integer', 'null')),
  FINALIDADE SMALLINT
    REFERENCES Tipos (SEQUENCIA) ON UPDATE CASCADE ON DELETE RESTRICT
    CHECK (typeof(FINALIDADE) IN ('integer', 'null') AND FINALIDADE BETWEEN -32768 AND 32767),
  JUSTIFICATIVA TEXT CHECK (typeof(JUSTIFICATIVA) IN ('text', 'null')),
  FICHA TEXT CHECK (typeof(FICHA) IN ('text', 'null'))
);

-- The commitment (empenho) of a process. Its number is typed by the operator.
CREATE TABLE Adiantamento (
  EMPENHO INTEGER NOT NULL PRIMARY KEY CHECK (EMPENHO BETWEEN -2147483648 AND 2147483647),
  PROCESSO INTEGER
    REFERENCES Requisicao (SEQ) ON UPDATE CASCADE ON DELETE CASCADE
    CHECK (typeof(PROCESSO) IN ('integer', 'null') AND PROCESSO BETWEEN -2147483648 AND 2147483647),
  ABERTURA DATETIME
    CHECK (typeof(ABERTURA) IN ('text', 'null') AND length(ABERTURA) = 19
           AND datetime(ABERTURA, '+0 days') IS ABERTURA
           AND substr(ABERTURA, 1, 4) >= '0100'),
  RETIRADA DATETIME
    CHECK (typeof(RETIRADA) IN ('text', 'null') AND length(RETIRADA) = 19
           AND datetime(RETIRADA, '+0 days') IS RETIRADA
           AND substr(RETIRADA, 1, 4) >= '0100'),
  FECHAR_EM DATETIME
    CHECK (typeof(FECHAR_EM) IN ('text', 'null') AND length(FECHAR_EM) = 19
           AND datetime(FECHAR_EM, '+0 days') IS FECHAR_EM
           AND substr(FECHAR_EM, 1, 4) >= '0100'),
  FECHAMENTO DATETIME
    CHECK (typeof(FECHAMENTO) IN ('text', 'null') AND length(FECHAMENTO) = 19
           AND datetime(FECHAMENTO, '+0 days') IS FECHAMENTO
           AND substr(FECHAMENTO, 1, 4) >= '0100'),
  DEVOLUCAO MONEY CHECK (typeof(DEVOLUCAO) IN ('integer', 'null')),
  DATADEV DATETIME
    CHECK (typeof(DATADEV) IN ('text', 'null') AND length(DATADEV) = 19
           AND datetime(DATADEV, '+0 days') IS DATADEV
           AND substr(DATADEV, 1, 4) >= '0100'),
  ANULADO BOOLEAN NOT NULL DEFAULT 0 CHECK (typeof(ANULADO) = 'integer' AND ANULADO IN (0, 1)),
  OP INTEGER CHECK (typeof(OP) IN ('integer', 'null') AND OP BETWEEN -2147483648 AND 2147483647)
);

-- Expense notes. PROCESSO is the commitment's number; ID_VIAGEM is 0 or a travel sheet.
CREATE TABLE PrestContas (
  SEQ INTEGER PRIMARY KEY AUTOINCREMENT CHECK (SEQ BETWEEN 1 AND 2147483647),
  PROCESSO INTEGER
    REFERENCES Adiantamento (EMPENHO) ON UPDATE CASCADE ON DELETE CASCADE
    CHECK (typeof(PROCESSO) IN ('integer', 'null') AND PROCESSO BETWEEN -2147483648 AND 2147483647),
  DATA DATETIME
    CHECK (typeof(DATA) IN ('text', 'null') AND length(DATA) = 19
           AND datetime(DATA, '+0 days') IS DATA
           AND substr(DATA, 1, 4) >= '0100'),
  ORDEM TEXT CHECK (typeof(ORDEM) IN ('text', 'null')),
  HISTORICO TEXT CHECK (typeof(HISTORICO) IN ('text', 'null')),
  DESPESAS MONEY CHECK (typeof(DESPESAS) IN ('integer', 'null')),
  ID_VIAGEM SMALLINT
    CHECK (typeof(ID_VIAGEM) IN ('integer', 'null') AND ID_VIAGEM BETWEEN -32768 AND 32767)
);

-- Requisitions that are printed and start no process.
CREATE TABLE ReqAvulso (
  SEQ INTEGER PRIMARY KEY AUTOINCREMENT CHECK (SEQ BETWEEN 1 AND 2147483647),
  DATA DATETIME
    CHECK (typeof(DATA) IN ('text', 'null') AND length(DATA) = 19
           AND datetime(DATA, '+0 days') IS DATA
           AND substr(DATA, 1, 4) >= '0100'),
  ORGAO SMALLINT
    REFERENCES Executor (ORDEM) ON UPDATE CASCADE ON DELETE RESTRICT
    CHECK (typeof(ORGAO) IN ('integer', 'null') AND ORGAO BETWEEN -32768 AND 32767),
  TOMADOR SMALLINT
    REFERENCES Tomador (ID) ON UPDATE CASCADE ON DELETE RESTRICT
    CHECK (typeof(TOMADOR) IN ('integer', 'null') AND TOMADOR BETWEEN -32768 AND 32767),
  VALOR MONEY CHECK (typeof(VALOR) IN ('integer', 'null')),
  FINALIDADE SMALLINT
    REFERENCES Tipos (SEQUENCIA) ON UPDATE CASCADE ON DELETE RESTRICT
    CHECK (typeof(FINALIDADE) IN ('integer', 'null') AND FINALIDADE BETWEEN -32768 AND 32767),
  JUSTIFICATIVA TEXT CHECK (typeof(JUSTIFICATIVA) IN ('text', 'null')),
  FICHA TEXT CHECK (typeof(FICHA) IN ('text', 'null'))
);

-- Travel sheets. PROCESSO is the commitment's number; HSAIDA and HCHEGADA are times of day.
CREATE TABLE Viagem (
  ITEM INTEGER PRIMARY KEY AUTOINCREMENT CHECK (ITEM BETWEEN 1 AND 2147483647),
  PLANILHA SMALLINT
    CHECK (typeof(PLANILHA) IN ('integer', 'null') AND PLANILHA BETWEEN -32768 AND 32767),
  PROCESSO INTEGER
    CHECK (typeof(PROCESSO) IN ('integer', 'null') AND PROCESSO BETWEEN -2147483648 AND 2147483647),
  DATA_SAIDA DATETIME
    CHECK (typeof(DATA_SAIDA) IN ('text', 'null') AND length(DATA_SAIDA) = 19
           AND datetime(DATA_SAIDA, '+0 days') IS DATA_SAIDA
           AND substr(DATA_SAIDA, 1, 4) >= '0100'),
  DATA_CHEGADA DATETIME
    CHECK (typeof(DATA_CHEGADA) IN ('text', 'null') AND length(DATA_CHEGADA) = 19
           AND datetime(DATA_CHEGADA, '+0 days') IS DATA_CHEGADA
           AND substr(DATA_CHEGADA, 1, 4) >= '0100'),
  HSAIDA TEXT CHECK (typeof(HSAIDA) IN ('text', 'null')),
  HCHEGADA TEXT CHECK (typeof(HCHEGADA) IN ('text', 'null')),
  UF TEXT CHECK (typeof(UF) IN ('text', 'null')),
  DESTINO TEXT CHECK (typeof(DESTINO) IN ('text', 'null')),
  LOCALIDADE TEXT CHECK (typeof(LOCALIDADE) IN ('text', 'null')),
  VEICULO TEXT CHECK (typeof(VEICULO) IN ('text', 'null')),
  PLACA TEXT CHECK (typeof(PLACA) IN ('text', 'null')),
  DISTANCIA SMALLINT
    CHECK (typeof(DISTANCIA) IN ('integer', 'null') AND DISTANCIA BETWEEN -32768 AND 32767),
  MOTORISTA TEXT CHECK (typeof(MOTORISTA) IN ('text', 'null')),
  PARTICIPANTES TEXT CHECK (typeof(PARTICIPANTES) IN ('text', 'null')),
  OBS TEXT CHECK (typeof(OBS) IN ('text', 'null')),
  MOTIVO TEXT CHECK (typeof(MOTIVO) IN ('text', 'null')),
  ORGAO TEXT CHECK (typeof(ORGAO) IN ('text', 'null'))
);

-- Transport sheets, numbered by PLANILHA within a process; HSAIDA and HCHEGADA are kilometres on
-- the odometer, DATA a day as it was written. The columns' order counts.
CREATE TABLE IdentificaTransp (
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

-- Fiscal documents of a transport sheet.
CREATE TABLE ItensTransp (
  IDENTIFICA INTEGER PRIMARY KEY AUTOINCREMENT CHECK (IDENTIFICA BETWEEN 1 AND 2147483647),
  IDENT_TRANSP INTEGER
    CHECK (typeof(IDENT_TRANSP) IN ('integer', 'null')
           AND IDENT_TRANSP BETWEEN -2147483648 AND 2147483647),
  DATADOC DATETIME
    CHECK (typeof(DATADOC) IN ('text', 'null') AND length(DATADOC) = 19
           AND datetime(DATADOC, '+0 days') IS DATADOC
           AND substr(DATADOC, 1, 4) >= '0100'),
  RAZAO TEXT CHECK (typeof(RAZAO) IN ('text', 'null')),
  DOCUMENTO TEXT CHECK (typeof(DOCUMENTO) IN ('text', 'null')),
  VALOR MONEY CHECK (typeof(VALOR) IN ('integer', 'null'))
);

-- Requests for goods from the store. The columns' order counts.
CREATE TABLE Produtos (
  ITEM INTEGER PRIMARY KEY AUTOINCREMENT CHECK (ITEM BETWEEN 1 AND 2147483647),
  DATA DATETIME
    CHECK (typeof(DATA) IN ('text', 'null') AND length(DATA) = 19
           AND datetime(DATA, '+0 days') IS DATA
           AND substr(DATA, 1, 4) >= '0100'),
  REQUISITANTE TEXT CHECK (typeof(REQUISITANTE) IN ('text', 'null')),
  LOCAL TEXT CHECK (typeof(LOCAL) IN ('text', 'null')),
  JUSTIFICATIVA TEXT CHECK (typeof(JUSTIFICATIVA) IN ('text', 'null')),
  PRODUTO1 TEXT CHECK (typeof(PRODUTO1) IN ('text', 'null')),
  QUANT1 TEXT CHECK (typeof(QUANT1) IN ('text', 'null')),
  PRODUTO2 TEXT CHECK (typeof(PRODUTO2) IN ('text', 'null')),
  QUANT2 TEXT CHECK (typeof(QUANT2) IN ('text', 'null')),
  PRODUTO3 TEXT CHECK (typeof(PRODUTO3) IN ('text', 'null')),
  QUANT3 TEXT CHECK (typeof(QUANT3) IN ('text', 'null')),
  PRODUTO4 TEXT CHECK (typeof(PRODUTO4) IN ('text', 'null')),
  QUANT4 TEXT CHECK (typeof(QUANT4) IN ('text', 'null')),
  PRODUTO5 TEXT CHECK (typeof(PRODUTO5) IN ('text', 'null')),
  QUANT5 TEXT CHECK (typeof(QUANT5) IN ('text', 'null')),
  PRODUTO6 TEXT CHECK (typeof(PRODUTO6) IN ('text', 'null')),
  QUANT6 TEXT CHECK (typeof(QUANT6) IN ('text', 'null')),
  PRODUTO7 TEXT CHECK (typeof(PRODUTO7) IN ('text', 'null')),
  QUANT7 TEXT CHECK (typeof(QUANT7) IN ('text', 'null')),
  PRODUTO8 TEXT CHECK (typeof(PRODUTO8) IN ('text', 'null')),
  QUANT8 TEXT CHECK (typeof(QUANT8) IN ('text', 'null')),
  PRODUTO9 TEXT CHECK (typeof(PRODUTO9) IN ('text', 'null')),
  QUANT9 TEXT CHECK (typeof(QUANT9) IN ('text', 'null')),
  PRODUTO10 TEXT CHECK (typeof(PRODUTO10) IN ('text', 'null')),
  QUANT10 TEXT CHECK (typeof(QUANT10) IN ('text', 'null'))
);

-- Requests for services. The columns' order counts.
CREATE TABLE Servicos (
  ITEM INTEGER PRIMARY KEY AUTOINCREMENT CHECK (ITEM BETWEEN 1 AND 2147483647),
  DATA DATETIME
    CHECK (typeof(DATA) IN ('text', 'null') AND length(DATA) = 19
           AND datetime(DATA, '+0 days') IS DATA
           AND substr(DATA, 1, 4) >= '0100'),
  REQUISITANTE TEXT CHECK (typeof(REQUISITANTE) IN ('text', 'null')),
  LOCAL TEXT CHECK (typeof(LOCAL) IN ('text', 'null')),
  JUSTIFICATIVA TEXT CHECK (typeof(JUSTIFICATIVA) IN ('text', 'null')),
  SERVICOS TEXT CHECK (typeof(SERVICOS) IN ('text', 'null'))
);

-- Cities with their distance by road in kilometres.
CREATE TABLE Cidades (
  id INTEGER NOT NULL PRIMARY KEY CHECK (id BETWEEN -2147483648 AND 2147483647),
  nome TEXT CHECK (typeof(nome) IN ('text', 'null')),
  uf TEXT CHECK (typeof(uf) IN ('text', 'null')),
  distancia DOUBLE
    CHECK (typeof(distancia) IN ('real', 'null') AND abs(distancia) <= 1.7976931348623157e308)
);

-- Stored queries, as text in the dialect of the program's statements.
CREATE TABLE Consultas (
  NOME TEXT NOT NULL PRIMARY KEY CHECK (typeof(NOME) = 'text'),
  TEXTO TEXT NOT NULL CHECK (typeof(TEXTO) = 'text')
);

-- What statements join, filter or sort on, and what the relations look up.
CREATE INDEX Executor_IDORGAO ON Executor (IDORGAO);
CREATE INDEX Tipos_IDORGAO ON Tipos (IDORGAO);
CREATE INDEX Inciso_TIPO ON Inciso (TIPO);
CREATE INDEX Dotacao_IDTIPO_ANO ON Dotacao (IDTIPO, ANO);
CREATE INDEX Dotacao_IDORGAO ON Dotacao (IDORGAO);
CREATE INDEX Dotacao_DOTACAO ON Dotacao (DOTACAO);
CREATE INDEX Requisicao_ORGAO ON Requisicao (ORGAO);
CREATE INDEX Requisicao_TOMADOR_FINALIDADE ON Requisicao (TOMADOR, FINALIDADE);
CREATE INDEX Requisicao_FINALIDADE ON Requisicao (FINALIDADE);
CREATE INDEX Adiantamento_PROCESSO ON Adiantamento (PROCESSO);
CREATE INDEX Adiantamento_ABERTURA ON Adiantamento (ABERTURA);
CREATE INDEX Adiantamento_FECHAMENTO_FECHAR_EM ON Adiantamento (FECHAMENTO, FECHAR_EM);
CREATE INDEX PrestContas_PROCESSO_DATA_SEQ ON PrestContas (PROCESSO, DATA, SEQ);
CREATE INDEX PrestContas_ID_VIAGEM_DATA ON PrestContas (ID_VIAGEM, DATA);
-- In the order in which the proposals for a text that is being typed are looked up.
CREATE INDEX PrestContas_HISTORICO ON PrestContas (HISTORICO COLLATE NOCASE);
CREATE INDEX ReqAvulso_ORGAO ON ReqAvulso (ORGAO);
CREATE INDEX ReqAvulso_TOMADOR ON ReqAvulso (TOMADOR);
CREATE INDEX ReqAvulso_FINALIDADE ON ReqAvulso (FINALIDADE);
CREATE INDEX Viagem_PROCESSO ON Viagem (PROCESSO);
CREATE INDEX IdentificaTransp_PROCESSO_PLANILHA ON IdentificaTransp (PROCESSO, PLANILHA);
CREATE INDEX ItensTransp_IDENT_TRANSP_DATADOC ON ItensTransp (IDENT_TRANSP, DATADOC);
CREATE INDEX Cidades_nome ON Cidades (nome COLLATE NOCASE);
