#pragma once

#include <declared/core/figure.h>
#include <declared/core/labeltitles.h>
#include <declared/core/letterstyle.h>
#include <declared/core/shapestate.h>

#include <shapekit/label.h>
#include <shapekit/styledshape.h>

#include <QtCore/QJsonObject>
#include <QtCore/QMap>

#include <memory>
#include <optional>
#include <vector>

class QXmlStreamWriter;
class QZeSvgTinyDocument;

namespace declared {

/// The labels of one shape: texts in boxes that the user writes, each with its size, weight, colour and alignment
/// as properties. A repeated label has a text for each round; the look is one for all repeated labels.
///
/// The document shows their letters as outlines, so that they look alike everywhere; exported pictures have them as
/// SVG text.
class Labels
{
public:
    /// Which labels that aren't repeated are saved.
    enum Saved { AllSingle, ChangedSingle };

    /// The declarations outlive the labels.
    explicit Labels(const QVector<LabelDeclaration> &declarations);
    /// Registers the properties, once. Their titles outlive the labels.
    void addProperties(shapekit::PropertiedShape *shape, const std::vector<LabelTitles> &titles);

    /// Draws those that aren't repeated.
    void draw(QZeSvgTinyDocument &document, ShapeState &state);
    /// @name Texts in the copies of a repeated element
    /// @{
    /// Whether the user has written one since they were drawn.
    bool hasChangedRounds(int repeat) const;
    void beginRounds(int repeat);
    /// In one copy, whose loops have these values in the state.
    void drawRound(int repeat, QZeSvgNode &copy, const QVector<double> &values, ShapeState &state);
    void endRounds(int repeat);
    /// @}
    /// @name Texts of rounds, by id; kept while their round is not shown
    /// @{
    bool hasRound(int id) const;
    QString textOfRound(int id) const;
    void setTextOfRound(int id, const QString &text);
    /// @}
    /// The look of all repeated labels.
    const LetterStyle &letters() const { return m_letters; }
    void setLetters(const LetterStyle &letters);
    /// The text with that id isn't drawn any more, all others are; 0 for none.
    void hide(int id);
    /// Where the labels stand, document units; those without a box are left out.
    QVector<shapekit::LabelPlace> places() const;
    /// An exported picture with text instead of outlines.
    QByteArray withTexts(const QByteArray &svg) const;
    /// By id, of repeated labels those that the user has written, under "letters" their look; empty without any.
    QJsonObject toJson(Saved saved) const;
    /// The part of a label that a control of the settings panel sets; none for one that sets something else.
    std::optional<shapekit::LetterPart> partOfControl(const QString &id) const;
    void fromJson(const QJsonObject &labels);

private:
    /// A text in its box.
    struct Writing
    {
        int id = 0;        ///< of its property; 0 for a round that can't be written
        QString text;      ///< of a round
        QString givenText; ///< of a round: until the user writes another one
        QRectF box;        ///< null while it has none
        QColor colour;
        shapekit::LabelLook look;
        shapekit::LabelLayout layout; ///< for that look
        QPointF corner;
        QString path; ///< of the layout, with that corner; empty before it is drawn
    };
    struct Label
    {
        const LabelDeclaration *declared = nullptr;
        std::unique_ptr<shapekit::Label> own; ///< null for a repeated one
        std::vector<Writing> writings;        ///< one, or one for each round
        size_t shownRounds = 0;
        QMap<int, QString> ownTexts; ///< of rounds, by id
        bool hasChanged = false;     ///< its rounds have to be drawn
    };
    struct Found
    {
        const Label *label = nullptr;
        const Writing *writing = nullptr;
    };

    static void readRounds(Label &label, const QJsonObject &labels);
    static void addProperties(shapekit::PropertiedShape *shape, Label &label, const LabelTitles &titles);
    shapekit::LabelLook lookOf(const Label &label, const QString &text, const QSizeF &box) const;
    /// None where a side is not finite.
    std::optional<QRectF> boxOf(const Label &label, ShapeState &state) const;
    void layOutWriting(const Label &label, Writing &writing, const QRectF &box) const;
    QColor colourOf(const Label &label, const ShapeState &state) const;
    void drawWriting(const Label &label, Writing &writing, QZeSvgNode &node, ShapeState &state) const;
    static void writeText(QXmlStreamWriter &writer, const Found &found);
    Found writingWithId(int id) const;
    void drawAllAgain();
    Label *labelOfRound(int id);
    const Label *labelOfRound(int id) const { return const_cast<Labels *>(this)->labelOfRound(id); }

    std::vector<Label> m_labels;
    LetterStyle m_letters;
    int m_hidden = 0; ///< text that isn't drawn
};

/// The labels of a drawing, for its figure.
class LabelRounds : public RoundWriter
{
public:
    /// Both outlive it.
    LabelRounds(Labels &labels, ShapeState &state)
        : m_labels(labels)
        , m_state(state)
    {
    }
    bool hasChanged(int repeat) const override { return m_labels.hasChangedRounds(repeat); }
    void begin(int repeat) override { m_labels.beginRounds(repeat); }
    void write(int repeat, QZeSvgNode &copy, const QVector<double> &values) override
    {
        m_labels.drawRound(repeat, copy, values, m_state);
    }
    void end(int repeat) override { m_labels.endRounds(repeat); }

private:
    Labels &m_labels;
    ShapeState &m_state;
};

} // namespace declared
