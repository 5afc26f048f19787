#include "TarnwickHost/Help.h"

#include "TarnwickHost/HostText.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/TextLines.h"

#include <QStringList>

#include <algorithm>

using TarnwickKit::model::columnsOf;
using TarnwickKit::model::wrapped;

namespace TarnwickHost {

namespace {

/// Columns of the options and commands, between two blanks on either side.
constexpr int optionColumns = 24;
constexpr int termColumns = 8;
/// Longer lines are hard to read.
constexpr int mostColumns = 118;
constexpr int leastColumns = 24;

struct HostHelp {
    Q_DECLARE_TR_FUNCTIONS(HostHelp)
};

QStringList linesOf(const char* source, int columns) {
    QString text = HostHelp::tr(source);
    if (text == QString::fromUtf8(source))
        return text.split(u'\n');
    return wrapped({}, text.replace(u'\n', u' '), std::max(columns, leastColumns)).trimmed().split(u'\n');
}

QString summaryOf(const Command& command, int columns) {
    //: %1: a sentence without its full stop.
    const QString text = HostHelp::tr("%1.").arg(HostHelp::tr(command.summary));
    const bool isEnglish = text == QString::fromUtf8(command.summary) + u'.';
    return (isEnglish ? text + u'\n' : wrapped({}, text, columns)) + u'\n';
}

QString blanks(int count) { return {count, u' '}; }

QString paragraph(const char* source, int columns) { return linesOf(source, columns).join(u'\n') + u'\n'; }

/// Two columns: the words on the left, what they mean on the right.
QString twoColumns(const QString& left, int leftColumns, const char* right, int columns) {
    const QString begin = "  " + left + blanks(leftColumns + 2 - std::min(leftColumns, columnsOf(left)));
    const QStringList lines = linesOf(right, columns - leftColumns - 4);
    return begin + lines.join(u'\n' + blanks(leftColumns + 4)) + u'\n';
}

QString twoWords(std::string_view first, std::string_view second) {
    return QString::fromUtf8(first) + (second.empty() ? "" : " ") + QString::fromUtf8(second);
}

QString usage(const QString& call) {
    //: %1: how a program is called, as "tarnwick-host run [OPTION]… FOLDER".
    return HostHelp::tr("Usage: %1").arg(isolated(("tarnwick-host " + call).toStdString())) + u'\n';
}

/// Terms stand below each other, all else is a blank line apart.
QString notesText(std::span<const Note> notes, int columns) {
    QString text;
    bool isBehindTerm = false;
    for (const Note& note : notes) {
        const bool isTerm = !note.term.empty();
        if (!isTerm || !isBehindTerm)
            text += u'\n';
        text += isTerm ? twoColumns(QString::fromUtf8(note.term), termColumns, note.text, columns)
                       : paragraph(note.text, columns);
        isBehindTerm = isTerm;
    }
    return text;
}

} // namespace

QString helpOf(const Command& command, int columns) {
    columns = std::min(columns, mostColumns);
    QString text = usage(twoWords(command.name, "[OPTION]…") + (command.operands.empty() ? "" : " ") +
                         QString::fromUtf8(command.operands));
    text += summaryOf(command, columns);
    for (const Option& option : command.options)
        text += twoColumns(twoWords(option.name, option.argument), optionColumns, option.help, columns);
    text += twoColumns("--help", optionColumns, QT_TRANSLATE_NOOP("HostHelp", "Show this text"), columns);
    return text + notesText(command.notes, columns);
}

QString helpOfProgram(std::span<const Command* const> commands, int columns) {
    columns = std::min(columns, mostColumns);
    QString text = usage("COMMAND [OPTION]… [OPERAND]…");
    text += paragraph(QT_TRANSLATE_NOOP("HostHelp", "Ondel Tarnwick in a terminal: how fast a disk is, "
                                                    "measured on it and removed again."),
                      columns) +
            u'\n';
    const auto add = [&](const QString& left, const char* right) {
        text += twoColumns(left, optionColumns, right, columns);
    };
    for (const Command* command : commands)
        add(QString::fromUtf8(command->name) + u' ' + QString::fromUtf8(command->operands), command->summary);
    add("--help",
        QT_TRANSLATE_NOOP("HostHelp", "Show this text, or behind a command that command's options"));
    add("--version", QT_TRANSLATE_NOOP("HostHelp", "Show the version"));
    return text;
}

} // namespace TarnwickHost
