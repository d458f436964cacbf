// The demonstration database of the statement tests, and keys of rows in it that are worth asking
// for.
#pragma once

#include <QString>

#include "tests/database/PlainDatabase.h"

namespace quartela::test {

// The data looks current on this day; the clock of all tests stands on it.
inline constexpr int kYear = 2014;

// Makes a database of 300 processes at `path`, with a few rows that the maker has none of: a
// requisition without orderer, person and type; a name in capitals with accents; notes on one day.
void makeSampleDatabase(const QString& path);

struct Samples {
  // No keys: enough for the wording of statements.
  Samples() = default;
  explicit Samples(PlainDatabase& plain);

  int process = 0;          // closed, with the most notes
  int commitment = 0;       // its empenho
  int openProcess = 0;      // the latest one that is not closed
  int requisitionOnly = 0;  // a process without empenho
  int orphan = 0;           // the requisition without orderer, person and type
  int note = 0;             // one of the process's notes
  int person = 0;           // the process's
  int type = 0;
  int allocation = 0;  // Dotacao.DOTACAO
  int orderer = 0;
  int secretariat = 0;
  int standalone = 0;  // ReqAvulso.SEQ
  int sheet = 0;       // the travel sheet with the most notes
  int sheetCommitment = 0;
  int transport = 0;  // the transport sheet with the most documents
  int transportCommitment = 0;
  int document = 0;  // one of its documents
  int clause = 0;
  int allocationKey = 0;  // Dotacao.ID
  int city = 0;
};

}  // namespace quartela::test
