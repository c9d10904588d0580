#include "help/view/manualtext.h"

#include "help/manual.h"

#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextListFormat>

#include <string_view>

namespace vantorel {

namespace {

QString Text(std::string_view text) { return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())); }

} // namespace

QFont ManualFont(double points) {
    QFont font;
    font.setFamilies({QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif"), QStringLiteral("Tinos"),
                      QStringLiteral("Nimbus Roman"), QStringLiteral("DejaVu Serif")});
    font.setStyleHint(QFont::Serif);
    font.setPointSizeF(points);
    return font;
}

void WriteManual(QTextDocument& document, const gui::Twips& twips) {
    document.clear();
    QTextCursor cursor(&document);
    QTextList* list = nullptr;
    bool first = true;
    for (const ManualParagraph& paragraph : ManualParagraphs()) {
        const ManualFormat f = FormatOf(paragraph.style);
        QTextBlockFormat block;
        block.setTopMargin(twips.toPixelsY(f.spaceBefore));
        block.setBottomMargin(twips.toPixelsY(f.spaceAfter));
        block.setAlignment(f.centred ? Qt::AlignHCenter : Qt::AlignLeft);
        QTextCharFormat chars;
        chars.setFont(ManualFont(f.points));
        chars.setFontWeight(f.bold ? QFont::Bold : QFont::Normal);
        chars.setFontItalic(f.italic);
        chars.setFontUnderline(f.underline);
        if (first) {
            cursor.setBlockFormat(block);
            cursor.setBlockCharFormat(chars);
        } else {
            cursor.insertBlock(block, chars);
        }
        first = false;
        // A run of bullet items is one list; any other paragraph ends it.
        if (paragraph.style == ManualStyle::Bullet) {
            if (list)
                list->add(cursor.block());
            else
                list = cursor.createList(QTextListFormat::ListDisc);
        } else {
            list = nullptr;
        }
        cursor.insertText(Text(paragraph.text), chars);
    }
}

void WriteLicence(QTextDocument& document, const gui::Twips& twips) {
    document.clear();
    QTextCursor cursor(&document);
    QTextBlockFormat block;
    block.setBottomMargin(twips.toPixelsY(90));
    QTextCharFormat chars;
    chars.setFont(ManualFont(10));
    const std::string_view licence = AboutLicence();
    bool first = true;
    for (std::size_t from = 0; from <= licence.size();) {
        const std::size_t to = std::min(licence.find("\n\n", from), licence.size());
        if (first) {
            cursor.setBlockFormat(block);
            cursor.setBlockCharFormat(chars);
        } else {
            cursor.insertBlock(block, chars);
        }
        first = false;
        cursor.insertText(Text(licence.substr(from, to - from)), chars);
        from = to + 2;
    }
}

} // namespace vantorel
