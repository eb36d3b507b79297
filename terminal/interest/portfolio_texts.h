// What the windows over portfolios say, in the user's language, and the bytes of what he says.
#pragma once

#include <QString>
#include <functional>
#include <string>

#include "screen/host/services.h"
#include "server/service/portfolios.h"
#include "terminal/interest/holdings_csv.h"

namespace jogeon::terminal {

// Why a change wasn't taken, as a sentence.
QString WhyNot(service::Verdict verdict);

// What is wrong with a line of a holdings file, behind its number.
QString FaultText(const RefusedLine& line);

// "▲ 120" and "▼ 120"; "-" for a change that isn't known.
QString ChangeText(double won);

// Shows an account's number.
using FormatAccount = std::function<QString(const std::string& number)>;

// CP949 of a name. Text that has no CP949 form is no text: empty, which no name may be.
std::string Bytes(const QString& text);

// A box with one button.
void Tell(host::Questions& questions, const QString& text, const QString& caption,
          host::Icon icon = host::Icon::Information);

// A box that asks; whether the user says yes.
bool Agrees(host::Questions& questions, const QString& text, const QString& caption);

}  // namespace jogeon::terminal
