SELECT Dotacao.ID, Dotacao.IDTIPO, Dotacao.DOTACAO, Dotacao.ANO, Dotacao.DESCRICAO, Tipos.TIPO,
       Dotacao.IDORGAO, Orgao.ORGAO
FROM (Dotacao LEFT JOIN Tipos ON Dotacao.IDTIPO = Tipos.SEQUENCIA)
     LEFT JOIN Orgao ON Dotacao.IDORGAO = Orgao.IDORGAO
ORDER BY Dotacao.ID;
