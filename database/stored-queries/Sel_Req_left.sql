SELECT Requisicao.SEQ, Requisicao.DATA, Requisicao.VALOR, Requisicao.FINALIDADE, Orgao.ORGAO,
       Tomador.NOME1, Tipos.TIPO, Adiantamento.EMPENHO, Adiantamento.ABERTURA,
       Adiantamento.RETIRADA, Adiantamento.FECHAR_EM, Adiantamento.FECHAMENTO,
       (Adiantamento.FECHAMENTO - Adiantamento.RETIRADA) AS DIAS
FROM ((((Requisicao LEFT JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO)
     LEFT JOIN Executor ON Requisicao.ORGAO = Executor.ORDEM)
     LEFT JOIN Orgao ON Executor.IDORGAO = Orgao.IDORGAO)
     LEFT JOIN Tomador ON Requisicao.TOMADOR = Tomador.ID)
     LEFT JOIN Tipos ON Requisicao.FINALIDADE = Tipos.SEQUENCIA
ORDER BY Requisicao.SEQ, Adiantamento.EMPENHO;
