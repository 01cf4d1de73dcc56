#include <checklist/filereading.h>

#include <declared/core/pluginmessage.h>
#include <declared/core/review.h>
#include <declared/reader/filelimits.h>
#include <declared/reader/filereader.h>
#include <declared/reader/shapereader.h>

#include <shapekit/templatecheck.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace checklist {

namespace {

const QString suffix = QStringLiteral(".shape.svg");

} // namespace

bool isDeclaredFile(const QString &fileName)
{
    return fileName.endsWith(suffix);
}

QString shapeName(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    return name.endsWith(suffix) ? name.chopped(suffix.size()) : QFileInfo(path).completeBaseName();
}

Faults declaredFaults(const QByteArray &bytes, const QString &path, declared::SharedDeclaration *declaration)
{
    QVector<declared::Message> messages;
    const declared::SharedDeclaration read = declared::readShape(bytes, shapeName(path), &messages);
    if (declaration)
        *declaration = read;
    Faults faults;
    for (const declared::Message &message : qAsConst(messages))
        faults.append(declared::pluginMessage(message, path));
    return faults;
}

ShapeFile readShapeFile(const QString &path)
{
    ShapeFile shape;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        shape.problem = QStringLiteral("%1 can't be read: %2").arg(path, file.errorString());
        return shape;
    }
    // One byte more than there may be, so that the reader refuses a file that is too large.
    shape.bytes = file.read(declared::limits::fileBytes + 1);
    shape.isDeclared = isDeclaredFile(path) || shape.bytes.contains(declared::shapeNamespace.toUtf8());
    shape.faults = shape.isDeclared ? declaredFaults(shape.bytes, path, &shape.declaration)
                                    : shapekit::templateFaults(QString::fromUtf8(shape.bytes), path);
    if (shape.declaration) {
        const declared::ShapeKind kind(shape.declaration);
        const QVector<declared::Message> warnings = declared::reviewed(kind, shape.bytes);
        for (const declared::Message &warning : warnings)
            shape.faults.append(declared::pluginMessage(warning, path));
    }
    return shape;
}

} // namespace checklist
