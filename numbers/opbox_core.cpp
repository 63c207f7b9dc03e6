// TOpBox's operations: reads the fields, computes with guard digits, rounds to the digit count.
#include "numbers/opbox_core.h"
#include "numbers/tbigfloat.h"

#include <algorithm>
#include <set>

namespace numbers {

bool opboxKnownOp(const std::string& op)
{
    static const std::set<std::string> ops = {"add", "sub", "mul", "div", "sqr", "sqrt", "inv",
                                              "pow", "ln",  "lg",  "exp", "pi",  "root", "log"};
    return ops.count(op) > 0;
}

bool opboxNeedsY(const std::string& op)
{
    return op == "add" || op == "sub" || op == "mul" || op == "div" || op == "pow" || op == "root" || op == "log";
}

OpBoxResult opboxCompute(const std::string& op, const std::string& xs, const std::string& ys, int digits)
{
    OpBoxResult res;
    digits = std::clamp(digits, OpBoxMinDigits, OpBoxMaxDigits);
    TBigFloat x, y, r;
    if (op != "pi" && !TBigFloat::parse(xs, x)) {
        res.text = bigFloatErrorText(BigFloatError::Number);
        return res;
    }
    if (opboxNeedsY(op) && !TBigFloat::parse(ys, y)) {
        res.text = bigFloatErrorText(BigFloatError::Number);
        return res;
    }
    // the operands count with the digits that are shown
    x.roundTo(digits);
    y.roundTo(digits);
    BigFloatMath m(digits + 12);  // guard digits, so that the last shown digit is right
    BigFloatError e = BigFloatError::None;
    if (op == "add")
        m.add(x, y, r);
    else if (op == "sub")
        m.sub(x, y, r);
    else if (op == "mul")
        m.mul(x, y, r);
    else if (op == "div")
        e = m.div(x, y, r);
    else if (op == "sqr")
        m.mul(x, x, r);
    else if (op == "sqrt")
        e = m.sqrt(x, r);
    else if (op == "inv")
        e = m.div(TBigFloat(1), x, r);
    else if (op == "pow")
        e = m.pow(x, y, r);
    else if (op == "ln")
        e = m.ln(x, r);
    else if (op == "lg") {
        TBigFloat l, l10;
        e = m.ln(x, l);
        m.ln10(l10);
        if (e == BigFloatError::None)
            e = m.div(l, l10, r);
    } else if (op == "exp")
        e = m.exp(x, r);
    else if (op == "pi")
        m.pi(r);
    else if (op == "root")
        e = m.root(x, y, r);
    else if (op == "log") {
        // log to the base y of x
        TBigFloat lx, ly;
        e = m.ln(x, lx);
        if (e == BigFloatError::None)
            e = m.ln(y, ly);
        if (e == BigFloatError::None)
            e = m.div(lx, ly, r);
    } else {
        res.text = bigFloatErrorText(BigFloatError::Conversion);
        return res;
    }
    if (e != BigFloatError::None) {
        res.text = bigFloatErrorText(e);
        return res;
    }
    res.ok = true;
    res.text = r.format(digits);
    return res;
}

}  // namespace numbers
