#include <declared/core/roundids.h>

#include <QtCore/QStringList>

namespace declared {

namespace {

/// Bits of all loops together, below those of the label.
constexpr int loopBits = 20;

int bitsOf(const LabelDeclaration &label)
{
    return loopBits / label.loops;
}

} // namespace

int idOfRound(const LabelDeclaration &label, const QVector<double> &values)
{
    const int bits = bitsOf(label);
    const int half = 1 << (bits - 1);
    int packed = 0;
    for (const double value : values) {
        if (!(value >= -half && value < half))
            return 0;
        packed = (packed << bits) | (int(value) + half);
    }
    return values.size() == label.loops ? label.firstRound + packed : 0;
}

bool isRoundOf(const LabelDeclaration &label, int id)
{
    return label.repeat >= 0 && id >= label.firstRound && id - label.firstRound < (1 << loopBits);
}

QString nameOfRound(const LabelDeclaration &label, int id)
{
    const int bits = bitsOf(label);
    const int half = 1 << (bits - 1);
    QString name = label.id;
    for (int loop = label.loops - 1; loop >= 0; --loop) {
        const int packed = ((id - label.firstRound) >> (loop * bits)) & ((1 << bits) - 1);
        name += QLatin1Char('_') + QString::number(packed - half);
    }
    return name;
}

int roundNamed(const LabelDeclaration &label, const QString &name)
{
    if (label.repeat < 0 || !name.startsWith(label.id + QLatin1Char('_')))
        return 0;
    QVector<double> values;
    const QStringList parts = name.mid(label.id.size() + 1).split(QLatin1Char('_'));
    for (const QString &part : parts) {
        bool isNumber = false;
        values.append(part.toInt(&isNumber));
        if (!isNumber)
            return 0;
    }
    return idOfRound(label, values);
}

} // namespace declared
