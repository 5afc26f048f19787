#pragma once

#include "OndelCore/Export.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <string_view>
#include <utility>
#include <vector>

namespace TarnwickKit::model {

/// The forms in which runs leave the program, told in docs/run-file.md.
enum class ExportForm { text, markdown, csv, json };

/// By the names that people type.
inline constexpr std::array<std::pair<std::string_view, ExportForm>, 4> exportForms{
    {{"text", ExportForm::text},
     {"markdown", ExportForm::markdown},
     {"csv", ExportForm::csv},
     {"json", ExportForm::json}}};

/// A table for a forum or a text. Up to four runs stand beside each other, more below each other. Numbers are
/// the user's. Texts of others cannot become markup, links or mentions. Empty for no runs.
ONDEL_PUBLIC QString markdownTable(const std::vector<RunRecord>& runs);

/// RFC 4180: a line of keys and one per run, in UTF-8, with numbers and dates as in a run file. Curves are
/// left out. A spreadsheet takes no text for a formula: those that could be one have an apostrophe in front.
ONDEL_PUBLIC QByteArray csvTable(const std::vector<RunRecord>& runs);

/// An array of run objects, one per line, that steers no terminal. A run without a JSON form is left out.
ONDEL_PUBLIC QByteArray jsonList(const std::vector<RunRecord>& runs);

/// Runs in a form, as UTF-8; as `text` see runTexts.
ONDEL_PUBLIC QByteArray exported(const std::vector<RunRecord>& runs, ExportForm form);

/// Whether a file's content is what this program writes for other programs: a run, a list of runs, or CSV of
/// `csvTable`. Files with anything else in them are never replaced unasked.
ONDEL_PUBLIC bool isExport(QByteArrayView content);

} // namespace TarnwickKit::model
