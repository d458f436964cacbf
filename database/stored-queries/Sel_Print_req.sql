SELECT Requisicao.SEQ, Requisicao.DATA, Requisicao.VALOR, Requisicao.JUSTIFICATIVA, Requisicao.FICHA,
       Orgao.ORGAO, Tomador.NOME1, Tomador.RG1, Tomador.CPF1, Tomador.CARGO,
       Executor.NOME, Executor.RG, Executor.CPF, Executor.FUNCAO,
       Tipos.TIPO, Tipos.ELEMENTO, Tipos.LEI, Tipos.MATERIAIS, Tipos.PRAZO
FROM (((Requisicao LEFT JOIN Executor ON Requisicao.ORGAO = Executor.ORDEM)
     LEFT JOIN Orgao ON Executor.IDORGAO = Orgao.IDORGAO)
     LEFT JOIN Tomador ON Requisicao.TOMADOR = Tomador.ID)
     LEFT JOIN Tipos ON Requisicao.FINALIDADE = Tipos.SEQUENCIA
ORDER BY Requisicao.SEQ;
