SELECT DISTINCT Cidades.uf
FROM Cidades
ORDER BY Cidades.uf;
