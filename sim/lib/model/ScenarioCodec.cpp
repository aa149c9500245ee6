#include "model/ScenarioCodec.h"

#include "model/SanFields.h"
#include "model/Scenario.h"

// Numbers with a fraction are written exactly as the general path writes
// them, so the two paths give the same bytes.
#include <nlohmann/detail/conversions/to_chars.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <optional>
#include <type_traits>

namespace sim::codec {

namespace {

// Length of the well-formed UTF-8 sequence that starts at `p` (the lead byte
// is at least 0x80), or 0 when it is not well formed: overlong forms,
// surrogates and code points past U+10FFFF are refused, as JSON requires.
size_t utf8SequenceLength(const unsigned char* p, const unsigned char* end)
{
    unsigned char lead = p[0];
    size_t length;
    unsigned char low = 0x80, high = 0xBF; // range of the second byte
    if (lead >= 0xC2 && lead <= 0xDF)
        length = 2;
    else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        if (lead == 0xE0)
            low = 0xA0;
        if (lead == 0xED)
            high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        if (lead == 0xF0)
            low = 0x90;
        if (lead == 0xF4)
            high = 0x8F;
    } else
        return 0;
    if (static_cast<size_t>(end - p) < length || p[1] < low || p[1] > high)
        return 0;
    for (size_t i = 2; i < length; ++i)
        if (p[i] < 0x80 || p[i] > 0xBF)
            return 0;
    return length;
}

// ---- writing ---------------------------------------------------------------

// Deep equality, field by field (the structs have no operator==).
template <class T>
bool same(const T& a, const T& b);
template <class T>
bool same(const std::vector<T>& a, const std::vector<T>& b);
template <FieldStruct T>
bool same(const T& a, const T& b);

template <class T>
bool same(const T& a, const T& b)
{
    return a == b;
}

template <class T>
bool same(const std::vector<T>& a, const std::vector<T>& b)
{
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (!same(a[i], b[i]))
            return false;
    return true;
}

template <FieldStruct T>
bool same(const T& a, const T& b)
{
    bool equal = true;
    visitFieldPairs([&](const char*, const auto& x, const auto& y) { equal = equal && same(x, y); }, a, b);
    return equal;
}

// The default of each element of a list: elements are written without the
// fields that hold it.
template <class T>
const T& elementDefault()
{
    static const T value{};
    return value;
}

// Positions of the fields of T in the order of their names, which is the
// order the general path writes them in, and the names by position.
struct FieldOrder {
    std::vector<unsigned char> positions;
    std::vector<std::string_view> names;
};

template <FieldStruct T>
const FieldOrder& sortedFieldOrder()
{
    static const FieldOrder order = [] {
        FieldOrder o;
        visitFields([&](const char* name, const auto&) { o.names.push_back(name); }, elementDefault<T>());
        o.positions.resize(o.names.size());
        std::iota(o.positions.begin(), o.positions.end(), 0);
        std::sort(o.positions.begin(), o.positions.end(),
                  [&](unsigned char a, unsigned char b) { return o.names[a] < o.names[b]; });
        return o;
    }();
    return order;
}

// The text being written. Appending to a std::string costs a call and a
// check per piece; the writer appends many small pieces, so it fills a
// buffer it sizes itself and trims it at the end.
class Output {
public:
    explicit Output(std::string& text) : text_(text) { text_.resize(16 * 1024); }
    ~Output() { text_.resize(length_); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void operator+=(char c)
    {
        if (length_ == text_.size())
            grow(1);
        text_[length_++] = c;
    }
    void operator+=(std::string_view piece) { append(piece.data(), piece.size()); }
    void append(const char* first, const char* last) { append(first, static_cast<size_t>(last - first)); }
    void append(const char* data, size_t size)
    {
        if (text_.size() - length_ < size)
            grow(size);
        std::memcpy(text_.data() + length_, data, size);
        length_ += size;
    }

private:
    void grow(size_t more) { text_.resize(std::max(2 * text_.size(), length_ + more)); }

    std::string& text_;
    size_t length_ = 0;
};

class Writer {
public:
    explicit Writer(Output& out) : out_(out) {}

    bool ok() const { return ok_; }

    template <FieldStruct T>
    void object(const T& value, const T& defaults, int depth, bool keepHeader = false)
    {
        // Each field that differs from its default, in the order of the list.
        struct Slot {
            const void* value;
            const void* defaults;
            void (*emit)(Writer&, const void*, const void*, int);
            bool shown;
        };
        std::array<Slot, 64> slots;
        size_t count = 0;
        visitFieldPairs(
            [&](const char* name, const auto& v, const auto& d) {
                using F = std::remove_cvref_t<decltype(v)>;
                bool header = keepHeader && (std::string_view(name) == "format" || std::string_view(name) == "version");
                if (count == slots.size()) {
                    ok_ = false; // a struct with more fields than slots: let the general path write it
                    return;
                }
                slots[count++] = Slot{&v, &d, &Writer::emitErased<F>, header || !same(v, d)};
            },
            value, defaults);
        const FieldOrder& order = sortedFieldOrder<T>();
        if (count != order.positions.size())
            return;
        bool first = true;
        for (unsigned char position : order.positions) {
            const Slot& slot = slots[position];
            if (!slot.shown)
                continue;
            out_ += first ? "{" : ",";
            first = false;
            newline(depth + 1);
            out_ += '"';
            out_ += order.names[position]; // field names need no escapes
            out_ += "\": ";
            slot.emit(*this, slot.value, slot.defaults, depth + 1);
        }
        close(first, "{}", '}', depth);
    }

private:
    template <class F>
    static void emitErased(Writer& w, const void* value, const void* defaults, int depth)
    {
        w.emit(*static_cast<const F*>(value), *static_cast<const F*>(defaults), depth);
    }

    template <FieldStruct T>
    void emit(const T& value, const T& defaults, int depth)
    {
        object(value, defaults, depth);
    }

    template <class T>
    void emit(const std::vector<T>& list, const std::vector<T>&, int depth)
    {
        bool first = true;
        for (const T& element : list) {
            out_ += first ? "[" : ",";
            first = false;
            newline(depth + 1);
            emit(element, elementDefault<T>(), depth + 1);
        }
        close(first, "[]", ']', depth);
    }

    void emit(const std::map<std::string, std::string>& map, const std::map<std::string, std::string>&, int depth)
    {
        bool first = true;
        for (const auto& [key, text] : map) {
            out_ += first ? "{" : ",";
            first = false;
            newline(depth + 1);
            string(key);
            out_ += ": ";
            string(text);
        }
        close(first, "{}", '}', depth);
    }

    // Present only when it differs from its default, which is absence.
    template <class T>
    void emit(const std::optional<T>& value, const std::optional<T>&, int depth)
    {
        emit(*value, elementDefault<T>(), depth);
    }

    // A figure that does not grow is a plain number.
    void emit(const PinnedFigure& figure, const PinnedFigure&, int depth)
    {
        if (figure.perSecond == 0) {
            emit(figure.value, 0LL, depth);
            return;
        }
        out_ += '{';
        newline(depth + 1);
        out_ += "\"perSecond\": ";
        emit(figure.perSecond, 0LL, depth + 1);
        out_ += ',';
        newline(depth + 1);
        out_ += "\"value\": ";
        emit(figure.value, 0LL, depth + 1);
        close(false, "{}", '}', depth);
    }

    // [name, value] or [name, value, perSecond].
    void emit(const PinnedCounter& counter, const PinnedCounter&, int depth)
    {
        out_ += '[';
        newline(depth + 1);
        string(counter.name);
        out_ += ',';
        newline(depth + 1);
        emit(counter.figure.value, 0LL, depth + 1);
        if (counter.figure.perSecond != 0) {
            out_ += ',';
            newline(depth + 1);
            emit(counter.figure.perSecond, 0LL, depth + 1);
        }
        close(false, "[]", ']', depth);
    }

    void emit(const std::string& text, const std::string&, int) { string(text); }
    // As adapterIdText writes it: upper-case hexadecimal digits.
    void emit(const AdapterId& id, const AdapterId&, int)
    {
        std::array<char, 20> digits;
        char* end = std::to_chars(digits.data(), digits.data() + digits.size(), id.value, 16).ptr;
        for (char* p = digits.data(); p < end; ++p)
            if (*p >= 'a')
                *p = static_cast<char>(*p - 'a' + 'A');
        out_ += '"';
        out_.append(digits.data(), end);
        out_ += '"';
    }
    void emit(bool flag, bool, int) { out_ += flag ? "true" : "false"; }

    void emit(double number, double, int)
    {
        if (!std::isfinite(number)) {
            out_ += "null";
            return;
        }
        std::array<char, 64> buffer;
        char* end = nlohmann::detail::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
        out_.append(buffer.data(), end);
    }

    template <class T>
    requires std::is_integral_v<T>
    void emit(T number, T, int)
    {
        std::array<char, 24> buffer;
        auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
        out_.append(buffer.data(), result.ptr);
    }

    void newline(int depth)
    {
        static const std::string breaks = "\n" + std::string(64, ' ');
        if (static_cast<size_t>(depth) < breaks.size()) {
            out_.append(breaks.data(), static_cast<size_t>(depth) + 1);
            return;
        }
        out_ += '\n';
        for (int i = 0; i < depth; ++i)
            out_ += ' ';
    }

    // Ends a list or object; one with no members is written on one line.
    void close(bool empty, const char* emptyForm, char last, int depth)
    {
        if (empty) {
            out_ += emptyForm;
            return;
        }
        newline(depth);
        out_ += last;
    }

    void string(std::string_view text)
    {
        static const char hex[] = "0123456789abcdef";
        out_ += '"';
        auto p = reinterpret_cast<const unsigned char*>(text.data());
        auto end = p + text.size();
        while (p < end) {
            auto run = p;
            while (run < end && plainCharacters()[*run])
                ++run;
            out_.append(reinterpret_cast<const char*>(p), static_cast<size_t>(run - p));
            p = run;
            if (p == end)
                break;
            unsigned char c = *p;
            if (c >= 0x80) {
                size_t length = utf8SequenceLength(p, end);
                if (length == 0) {
                    ok_ = false;
                    return;
                }
                out_.append(reinterpret_cast<const char*>(p), length);
                p += length;
                continue;
            }
            switch (c) {
            case '"':
                out_ += "\\\"";
                break;
            case '\\':
                out_ += "\\\\";
                break;
            case '\b':
                out_ += "\\b";
                break;
            case '\t':
                out_ += "\\t";
                break;
            case '\n':
                out_ += "\\n";
                break;
            case '\f':
                out_ += "\\f";
                break;
            case '\r':
                out_ += "\\r";
                break;
            default:
                out_ += "\\u00";
                out_ += hex[c >> 4];
                out_ += hex[c & 0xF];
                break;
            }
            ++p;
        }
        out_ += '"';
    }

    // Bytes that go into a JSON string as they are, one lookup per byte.
    static const std::array<bool, 256>& plainCharacters()
    {
        static const std::array<bool, 256> plain = [] {
            std::array<bool, 256> table{};
            for (int c = 0x20; c < 0x80; ++c)
                table[static_cast<size_t>(c)] = c != '"' && c != '\\';
            return table;
        }();
        return plain;
    }

    Output& out_;
    bool ok_ = true;
};

// ---- reading ---------------------------------------------------------------

class Reader {
public:
    explicit Reader(std::string_view text) : p_(text.data()), end_(text.data() + text.size()) {}

    bool atEnd()
    {
        skipSpace();
        return p_ == end_;
    }

    template <FieldStruct T>
    bool value(T& object)
    {
        std::uint64_t seen = 0;
        return value(object, seen);
    }

    // `seen` gets one bit for each field present, by its place in the list.
    template <FieldStruct T>
    bool value(T& object, std::uint64_t& seen)
    {
        if (!take('{'))
            return false;
        if (take('}'))
            return true;
        do {
            std::string_view key;
            if (!plainKey(key) || !take(':'))
                return false;
            bool found = false, ok = false;
            unsigned position = 0;
            visitFields(
                [&](const char* name, auto& field) {
                    if (!found && key == name && position < 64) { // one bit per field
                        found = true;
                        std::uint64_t bit = std::uint64_t{1} << position;
                        ok = !(seen & bit) && value(field);
                        seen |= bit;
                    }
                    ++position;
                },
                object);
            if (!ok)
                return false;
        } while (take(','));
        return take('}');
    }

    template <class T>
    bool value(std::vector<T>& list)
    {
        list.clear();
        if (!take('['))
            return false;
        if (take(']'))
            return true;
        do {
            list.emplace_back();
            if (!value(list.back()))
                return false;
        } while (take(','));
        return take(']');
    }

    bool value(std::map<std::string, std::string>& map)
    {
        map.clear();
        if (!take('{'))
            return false;
        if (take('}'))
            return true;
        do {
            std::string key, text;
            if (!value(key) || !take(':') || !value(text) || !map.emplace(std::move(key), std::move(text)).second)
                return false;
        } while (take(','));
        return take('}');
    }

    // A null is left to the general path, which reads it as absent.
    template <class T>
    bool value(std::optional<T>& present)
    {
        return value(present.emplace());
    }

    bool value(PinnedFigure& figure)
    {
        figure = PinnedFigure{};
        skipSpace();
        if (p_ == end_ || *p_ != '{')
            return value(figure.value);
        ++p_;
        bool seenValue = false, seenPace = false;
        do {
            std::string_view key;
            if (!plainKey(key) || !take(':'))
                return false;
            if (key == "value" && !seenValue)
                seenValue = value(figure.value);
            else if (key == "perSecond" && !seenPace)
                seenPace = value(figure.perSecond);
            else
                return false;
            if ((key == "value" && !seenValue) || (key == "perSecond" && !seenPace))
                return false;
        } while (take(','));
        return take('}');
    }

    bool value(PinnedCounter& counter)
    {
        counter = PinnedCounter{};
        if (!take('[') || !value(counter.name) || !take(',') || !value(counter.figure.value))
            return false;
        if (take(',') && !value(counter.figure.perSecond))
            return false;
        return take(']');
    }

    bool value(bool& flag)
    {
        skipSpace();
        if (word("true"))
            flag = true;
        else if (word("false"))
            flag = false;
        else
            return false;
        return true;
    }

    bool value(AdapterId& id)
    {
        skipSpace();
        if (p_ < end_ && *p_ == '"') {
            std::string text;
            return value(text) && parseAdapterId(text, id.value);
        }
        return value(id.value);
    }

    template <class T>
    requires std::is_integral_v<T>
    bool value(T& number)
    {
        Number n;
        if (!numberToken(n) || !n.whole)
            return false;
        if (n.negative) {
            long long v;
            if (!convert(n, v) || v < static_cast<long long>(std::numeric_limits<T>::min()))
                return false;
            number = static_cast<T>(v);
        } else {
            unsigned long long v;
            if (!convert(n, v) || v > static_cast<unsigned long long>(std::numeric_limits<T>::max()))
                return false;
            number = static_cast<T>(v);
        }
        return true;
    }

    bool value(double& number)
    {
        Number n;
        if (!numberToken(n))
            return false;
        if (n.whole) {
            // A whole number is taken as one and then converted, as the
            // general path does (so "-0" reads as 0.0).
            if (n.negative) {
                long long v;
                if (!convert(n, v))
                    return false;
                number = static_cast<double>(v);
            } else {
                unsigned long long v;
                if (!convert(n, v))
                    return false;
                number = static_cast<double>(v);
            }
            return true;
        }
        return convert(n, number);
    }

    bool value(std::string& text)
    {
        skipSpace();
        if (p_ == end_ || *p_ != '"')
            return false;
        ++p_;
        text.clear();
        for (;;) {
            const char* run = p_;
            while (run < end_ && static_cast<unsigned char>(*run) >= 0x20 && static_cast<unsigned char>(*run) < 0x80 &&
                   *run != '"' && *run != '\\')
                ++run;
            text.append(p_, run);
            p_ = run;
            if (p_ == end_)
                return false;
            auto c = static_cast<unsigned char>(*p_);
            if (c == '"') {
                ++p_;
                return true;
            }
            if (c < 0x20)
                return false;
            if (c == '\\') {
                if (!escape(text))
                    return false;
                continue;
            }
            size_t length = utf8SequenceLength(reinterpret_cast<const unsigned char*>(p_),
                                               reinterpret_cast<const unsigned char*>(end_));
            if (length == 0)
                return false;
            text.append(p_, length);
            p_ += length;
        }
    }

private:
    struct Number {
        std::string_view text;
        bool negative = false;
        bool whole = true;
    };

    void skipSpace()
    {
        while (p_ < end_ && (*p_ == ' ' || *p_ == '\n' || *p_ == '\r' || *p_ == '\t'))
            ++p_;
    }

    bool take(char c)
    {
        skipSpace();
        if (p_ == end_ || *p_ != c)
            return false;
        ++p_;
        return true;
    }

    bool word(std::string_view w)
    {
        if (static_cast<size_t>(end_ - p_) < w.size() || std::string_view(p_, w.size()) != w)
            return false;
        p_ += w.size();
        return true;
    }

    // Field names are plain ASCII; a name written with escapes is left to the
    // general path.
    bool plainKey(std::string_view& key)
    {
        if (!take('"'))
            return false;
        const char* start = p_;
        while (p_ < end_ && *p_ != '"' && *p_ != '\\' && static_cast<unsigned char>(*p_) >= 0x20)
            ++p_;
        if (p_ == end_ || *p_ != '"')
            return false;
        key = std::string_view(start, static_cast<size_t>(p_ - start));
        ++p_;
        return true;
    }

    static bool isDigit(char c) { return c >= '0' && c <= '9'; }

    void digits()
    {
        while (p_ < end_ && isDigit(*p_))
            ++p_;
    }

    // A number as JSON writes it: -?(0|[1-9][0-9]*)(.[0-9]+)?([eE][+-]?[0-9]+)?
    bool numberToken(Number& n)
    {
        skipSpace();
        const char* start = p_;
        if (p_ < end_ && *p_ == '-') {
            n.negative = true;
            ++p_;
        }
        if (p_ == end_ || !isDigit(*p_))
            return false;
        if (*p_++ != '0')
            digits();
        if (p_ < end_ && *p_ == '.') {
            n.whole = false;
            ++p_;
            if (p_ == end_ || !isDigit(*p_))
                return false;
            digits();
        }
        if (p_ < end_ && (*p_ == 'e' || *p_ == 'E')) {
            n.whole = false;
            ++p_;
            if (p_ < end_ && (*p_ == '+' || *p_ == '-'))
                ++p_;
            if (p_ == end_ || !isDigit(*p_))
                return false;
            digits();
        }
        n.text = std::string_view(start, static_cast<size_t>(p_ - start));
        return true;
    }

    template <class T>
    static bool convert(const Number& n, T& out)
    {
        const char* first = n.text.data();
        const char* last = first + n.text.size();
        if constexpr (std::is_unsigned_v<T>) {
            if (n.negative)
                return false;
        }
        auto result = std::from_chars(first, last, out);
        return result.ec == std::errc() && result.ptr == last;
    }

    static int hexValue(char c)
    {
        if (c >= '0' && c <= '9')
            return c - '0';
        if (c >= 'a' && c <= 'f')
            return c - 'a' + 10;
        if (c >= 'A' && c <= 'F')
            return c - 'A' + 10;
        return -1;
    }

    bool hex4(unsigned& code)
    {
        if (end_ - p_ < 4)
            return false;
        code = 0;
        for (int i = 0; i < 4; ++i) {
            int d = hexValue(*p_++);
            if (d < 0)
                return false;
            code = code * 16 + static_cast<unsigned>(d);
        }
        return true;
    }

    // After a backslash inside a string.
    bool escape(std::string& text)
    {
        ++p_;
        if (p_ == end_)
            return false;
        char c = *p_++;
        switch (c) {
        case '"':
            text += '"';
            return true;
        case '\\':
            text += '\\';
            return true;
        case '/':
            text += '/';
            return true;
        case 'b':
            text += '\b';
            return true;
        case 'f':
            text += '\f';
            return true;
        case 'n':
            text += '\n';
            return true;
        case 'r':
            text += '\r';
            return true;
        case 't':
            text += '\t';
            return true;
        case 'u':
            break;
        default:
            return false;
        }
        unsigned code;
        if (!hex4(code) || (code >= 0xDC00 && code <= 0xDFFF))
            return false;
        if (code >= 0xD800 && code <= 0xDBFF) {
            unsigned low;
            if (!word("\\u") || !hex4(low) || low < 0xDC00 || low > 0xDFFF)
                return false;
            code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
        }
        appendUtf8(text, code);
        return true;
    }

    static void appendUtf8(std::string& text, unsigned code)
    {
        if (code < 0x80) {
            text += static_cast<char>(code);
        } else if (code < 0x800) {
            text += static_cast<char>(0xC0 | (code >> 6));
            text += static_cast<char>(0x80 | (code & 0x3F));
        } else if (code < 0x10000) {
            text += static_cast<char>(0xE0 | (code >> 12));
            text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
            text += static_cast<char>(0x80 | (code & 0x3F));
        } else {
            text += static_cast<char>(0xF0 | (code >> 18));
            text += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
            text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
            text += static_cast<char>(0x80 | (code & 0x3F));
        }
    }

    const char* p_;
    const char* end_;
};

template <FieldStruct T>
std::uint64_t fieldBit(std::string_view wanted)
{
    std::uint64_t bit = 0;
    unsigned position = 0;
    visitFields(
        [&](const char* name, const auto&) {
            if (wanted == name)
                bit = std::uint64_t{1} << position;
            ++position;
        },
        elementDefault<T>());
    return bit;
}

// The header as the general path checks it. Left out, the two fields would
// read as their defaults, so they must also have been present.
bool headerAccepted(const San& san, std::uint64_t seen)
{
    static const std::uint64_t required = fieldBit<San>("format") | fieldBit<San>("version");
    return (seen & required) == required && san.format == "hbasim-scenario" && san.version >= 1 &&
        san.version <= kScenarioVersion;
}

} // namespace

bool isUtf8(std::string_view text)
{
    auto p = reinterpret_cast<const unsigned char*>(text.data());
    auto end = p + text.size();
    while (p < end) {
        if (*p < 0x80) {
            ++p;
            continue;
        }
        size_t length = utf8SequenceLength(p, end);
        if (length == 0)
            return false;
        p += length;
    }
    return true;
}

bool write(const San& san, std::string& out)
{
    Output output(out);
    Writer writer(output);
    writer.object(san, elementDefault<San>(), 0, true);
    output += '\n';
    return writer.ok();
}

bool read(std::string_view text, San& out)
{
    San san;
    Reader reader(text);
    std::uint64_t seen = 0;
    if (!reader.value(san, seen) || !reader.atEnd() || !headerAccepted(san, seen))
        return false;
    out = std::move(san);
    return true;
}

} // namespace sim::codec
