SELECT Viagem.ITEM, Viagem.ORGAO, Viagem.VEICULO, Viagem.MOTIVO, Viagem.LOCALIDADE,
       Viagem.DISTANCIA, Viagem.PLACA, Viagem.DATA_SAIDA, Viagem.DATA_CHEGADA, Viagem.HSAIDA,
       Viagem.HCHEGADA, Viagem.DESTINO, Viagem.UF, Viagem.PARTICIPANTES, Viagem.OBS,
       Viagem.MOTORISTA
FROM Viagem
ORDER BY Viagem.ITEM;
