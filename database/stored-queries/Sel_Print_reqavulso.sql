SELECT ReqAvulso.SEQ, ReqAvulso.DATA, ReqAvulso.VALOR, ReqAvulso.JUSTIFICATIVA, ReqAvulso.FICHA,
       Orgao.ORGAO, Tomador.NOME1, Tomador.RG1, Tomador.CPF1, Tomador.CARGO,
       Executor.NOME, Executor.RG, Executor.CPF, Executor.FUNCAO,
       Tipos.TIPO, Tipos.ELEMENTO, Tipos.LEI, Tipos.MATERIAIS, Tipos.PRAZO
FROM (((ReqAvulso LEFT JOIN Executor ON ReqAvulso.ORGAO = Executor.ORDEM)
     LEFT JOIN Orgao ON Executor.IDORGAO = Orgao.IDORGAO)
     LEFT JOIN Tomador ON ReqAvulso.TOMADOR = Tomador.ID)
     LEFT JOIN Tipos ON ReqAvulso.FINALIDADE = Tipos.SEQUENCIA
ORDER BY ReqAvulso.SEQ;
