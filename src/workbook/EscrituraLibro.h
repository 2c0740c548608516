#pragma once
// The finished sheets written as one .xlsx file.

#include "workbook/HojaLibro.h"

#include <QString>
#include <vector>

// Writes the sheets, in order, to `archivo`: first under a temporary name
// beside it, then put in its place in one step, so that a failure leaves no
// half file and an existing file as it was.  The first sheet is the one that
// opens.  False, with a Spanish message in `error`, when the target cannot
// be written.
bool EscribirLibro(const std::vector<HojaLibro>& hojas, const QString& archivo, QString& error);
