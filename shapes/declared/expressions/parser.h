#pragma once

#include <declared/expressions/compiler.h>

#include <QtCore/QHash>

namespace declared {

/// Reads one text by the grammar of expressions and appends the steps to the program. Each operation gives an index
/// of a step, or a negative number after a fault.
class Parser
{
public:
    Parser(Compiler &compiler, const QString &text);

    /// Binds a name to the next local value.
    qint32 addLocal(const QString &name, Type type);
    void setInFunction() { m_inFunction = true; }

    qint32 expression();
    qint32 expressionOfType(Type type);
    /// Text up to the end, "{end}" or "{else}"; the latter two are left to the caller.
    qint32 text();
    bool call(CallExpression &call);
    bool range(RangeExpression &range);
    bool loops(QVector<LoopExpression> &loops);
    /// False, with a fault, unless the whole text is read.
    bool atEnd();

    Type typeOf(qint32 step) const { return m_compiler.m_program.steps[size_t(step)].type; }
    Expression finished(qint32 step);

private:
    struct Local
    {
        qint32 slot;
        Type type;
    };
    using Kinds = QVector<Type>;

    qint32 fail(const char *code, int offset, const QString &message);
    qint32 add(const Step &step, const QVector<qint32> &arguments = {});
    qint32 binary(int level);
    qint32 comparison();
    qint32 unary();
    qint32 postfix(qint32 operand);
    qint32 primary();
    qint32 named(const Token &name);
    qint32 variable(const Token &name, const Symbol &symbol);
    qint32 calledFunction(const Token &name);
    qint32 listCount(const Token &name);
    qint32 fileFunction(const Token &name, const Symbol &symbol, const QVector<qint32> &arguments);
    qint32 instance(const Token &name, const Function &function, const Kinds &types);
    bool arguments(QVector<qint32> &arguments);
    qint32 calculation(const Token &sign, qint32 left, qint32 right);
    qint32 choice(qint32 condition);
    bool isOfType(qint32 step, Type type, int offset);
    bool expectSign(const char *sign);
    bool newName(const Token &name);

    /// @name Text with braces, read by character
    /// @{
    qint32 braced(int brace);
    qint32 loopText(int brace);
    qint32 conditionText(int brace);
    qint32 textUntil(QString &closing);
    bool closeBrace();
    QString closingWordAt(int offset) const;
    /// @}

    Compiler &m_compiler;
    QString m_text;
    Lexer m_lexer;
    int m_position = 0; ///< in text with braces
    int m_depth = 0;
    int m_loopDepth = 0;
    bool m_inFunction = false;
    QHash<QString, Local> m_locals;
    QVector<qint32> m_inputs;
};

} // namespace declared
