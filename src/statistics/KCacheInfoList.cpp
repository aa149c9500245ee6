#include "statistics/KCacheInfoList.h"

namespace {

using OPERATION_TYPE = KCacheInfoList::OPERATION_TYPE;

bool isBasicOperation(OPERATION_TYPE op)
{
    return op >= KCacheInfoList::OP_ADD && op <= KCacheInfoList::OP_DIVIDE;
}

// a op b for the four basic operations.
KCacheInfo basicOperation(const KCacheInfo& a, OPERATION_TYPE op, const KCacheInfo& b)
{
    switch (op) {
    case KCacheInfoList::OP_ADD:
        return a + b;
    case KCacheInfoList::OP_SUBTRACT:
        return a - b;
    case KCacheInfoList::OP_MULTIPLY:
        return a * b;
    default:
        return a / b;
    }
}

// result = a op b; an operation outside the table leaves result alone.
void applyOperation(const KCacheInfo& a, OPERATION_TYPE op, const KCacheInfo& b, KCacheInfo& result)
{
    if (isBasicOperation(op))
        result = basicOperation(a, op, b);
    else if (op == KCacheInfoList::OP_PERCENT)
        result = (a * 100LL) / b;
}

// A constant operand in the shape of a counter.
KCacheInfo constantOperand(long long value)
{
    KCacheInfo operand;
    operand.value = value;
    return operand;
}

} // namespace

bool KCacheInfoList::findItem(const char* name, unsigned long length, KCacheInfo& out) const
{
    // No stored name reaches beyond its field.
    if (name == nullptr || length > KCacheInfo::NAME_SIZE)
        return false;
    for (const KCacheInfo& item : items) {
        if (PBase::fastIsEqualMemcmp(item.name, sizeof item.name, name, length)) {
            out = item;
            return true;
        }
    }
    return false;
}

std::string KCacheInfoList::displayTitles() const
{
    std::string text;
    for (unsigned int i = 0; i < count && i < MAX_ITEMS; ++i)
        text += items[i].displayTitle() + "    ";
    return text;
}

std::string KCacheInfoList::displayText() const
{
    std::string text;
    for (unsigned int i = 0; i < count && i < MAX_ITEMS; ++i)
        text += PBase::ui64NumberToText(static_cast<unsigned long long>(items[i].value)) + "    ";
    return text + "\n";
}

bool KCacheInfoList::lookUp(const char* name, unsigned long length, int position, KCacheInfo& out,
                            std::string& error) const
{
    if (findItem(name, length, out))
        return true;
    error += "Item " + PBase::numberToText(position) + " not found.";
    return false;
}

bool KCacheInfoList::cacheEquation(const KCacheInfo& first, OPERATION_TYPE op, long long second, KCacheInfo& result,
                                   std::string&) const
{
    applyOperation(first, op, constantOperand(second), result);
    return true;
}

bool KCacheInfoList::cacheEquation(const KCacheInfo& first, OPERATION_TYPE op, const KCacheInfo& second,
                                   KCacheInfo& result, std::string&) const
{
    applyOperation(first, op, second, result);
    return true;
}

bool KCacheInfoList::cacheEquation(const KCacheInfo& first, OPERATION_TYPE op, const char* secondName,
                                   unsigned long secondLength, KCacheInfo& result, std::string& error) const
{
    KCacheInfo second;
    if (!lookUp(secondName, secondLength, 2, second, error))
        return false;
    applyOperation(first, op, second, result);
    return true;
}

bool KCacheInfoList::cacheEquation(const char* firstName, unsigned long firstLength, OPERATION_TYPE op,
                                   const KCacheInfo& second, KCacheInfo& result, std::string& error) const
{
    KCacheInfo first;
    if (!lookUp(firstName, firstLength, 1, first, error))
        return false;
    applyOperation(first, op, second, result);
    return true;
}

bool KCacheInfoList::cacheEquation(const char* firstName, unsigned long firstLength, OPERATION_TYPE op,
                                   long long second, KCacheInfo& result, std::string& error) const
{
    return cacheEquation(firstName, firstLength, op, constantOperand(second), result, error);
}

bool KCacheInfoList::cacheEquation(const char* firstName, unsigned long firstLength, OPERATION_TYPE op,
                                   const char* secondName, unsigned long secondLength, KCacheInfo& result,
                                   std::string& error) const
{
    KCacheInfo first;
    if (!lookUp(firstName, firstLength, 1, first, error))
        return false;
    return cacheEquation(first, op, secondName, secondLength, result, error);
}

bool KCacheInfoList::cacheEquation(const char* firstName, unsigned long firstLength, OPERATION_TYPE op1,
                                   const char* secondName, unsigned long secondLength, OPERATION_TYPE op2,
                                   const char* thirdName, unsigned long thirdLength, KCacheInfo& result,
                                   std::string& error) const
{
    KCacheInfo first;
    KCacheInfo second;
    KCacheInfo third;
    if (!lookUp(firstName, firstLength, 1, first, error) || !lookUp(secondName, secondLength, 2, second, error) ||
        !lookUp(thirdName, thirdLength, 3, third, error))
        return false;

    bool sumOfProduct = (op1 == OP_ADD || op1 == OP_SUBTRACT) && op2 > OP_SUBTRACT;
    if (sumOfProduct) {
        // Only a product or quotient is formed first; any other second
        // operation leaves the incoming result as the right-hand side.
        if (op2 == OP_MULTIPLY || op2 == OP_DIVIDE)
            result = basicOperation(second, op2, third);
        result = basicOperation(first, op1, result);
        return true;
    }
    if (isBasicOperation(op1))
        result = basicOperation(first, op1, second);
    if (isBasicOperation(op2))
        result = basicOperation(result, op2, second);
    return true;
}
