SELECT Requisicao.SEQ, Adiantamento.EMPENHO, Adiantamento.ABERTURA, Adiantamento.RETIRADA,
       Executor.NOME, Tomador.NOME1, Tomador.CARGO, Orgao.ORGAO, Requisicao.VALOR
FROM (((Requisicao INNER JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO)
     LEFT JOIN Executor ON Requisicao.ORGAO = Executor.ORDEM)
     LEFT JOIN Orgao ON Executor.IDORGAO = Orgao.IDORGAO)
     LEFT JOIN Tomador ON Requisicao.TOMADOR = Tomador.ID
ORDER BY Requisicao.SEQ, Adiantamento.EMPENHO;
