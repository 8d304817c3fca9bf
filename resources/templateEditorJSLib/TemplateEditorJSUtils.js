// Helpers for the scripts of report templates, seen there as templateEditorCore. The reference, with
// examples, is docs/report-templates.md.
//
// Each returns something new and keeps nothing: what one template does must not be seen by the next.
(function () {
    "use strict";

    var ELECTRON_DA = 0.000548579909065;
    var HYDROGEN_DA = 1.00782503223;
    var PROTON_DA = HYDROGEN_DA - ELECTRON_DA;
    var SUPERSCRIPTS = { "-": "⁻", "0": "⁰", "1": "¹", "2": "²", "3": "³", "4": "⁴",
                         "5": "⁵", "6": "⁶", "7": "⁷", "8": "⁸", "9": "⁹" };
    var MONTHS = ["January", "February", "March", "April", "May", "June", "July", "August", "September",
                  "October", "November", "December"];

    function text(value) {
        return value === undefined || value === null ? "" : String(value);
    }

    // Texts that are no numbers, such as "n. d." or a range, come out of the formatting as they are.
    function toNumber(value) {
        if (typeof value === "number")
            return value;
        var trimmed = text(value).trim();
        return trimmed === "" ? NaN : Number(trimmed);
    }

    function withUnit(formatted, unit) {
        return text(unit) === "" ? formatted : formatted + " " + unit;
    }

    function fixed(value, digits) {
        return digits === undefined ? String(value) : value.toFixed(digits);
    }

    function number(value, digits, unit) {
        var parsed = toNumber(value);
        return isFinite(parsed) ? withUnit(fixed(parsed, digits), unit) : text(value);
    }

    function grouped(value, digits, separator) {
        var parsed = toNumber(value);
        if (!isFinite(parsed))
            return text(value);
        var parts = fixed(parsed, digits === undefined ? 0 : digits).split(".");
        var between = separator === undefined ? "\u2009" : separator;
        for (var at = parts[0].length - 3; at > (parsed < 0 ? 1 : 0); at -= 3)
            parts[0] = parts[0].slice(0, at) + between + parts[0].slice(at);
        return parts.join(".");
    }

    function superscript(exponent) {
        return String(exponent).split("").map(function (sign) { return SUPERSCRIPTS[sign]; }).join("");
    }

    function scientific(value, digits, unit) {
        var parsed = toNumber(value);
        if (!isFinite(parsed))
            return text(value);
        var parts = parsed.toExponential(digits === undefined ? 2 : digits).split("e");
        return withUnit(parts[0] + " × 10" + superscript(Number(parts[1])), unit);
    }

    function percent(value, digits) {
        return number(value, digits === undefined ? 1 : digits, "%");
    }

    function mass(value, digits) {
        return number(value, digits === undefined ? 4 : digits, "Da");
    }

    function mz(neutral, charge, digits) {
        var z = toNumber(charge);
        var value = (toNumber(neutral) + z * PROTON_DA) / Math.abs(z);
        return isFinite(value) ? value.toFixed(digits === undefined ? 4 : digits) : "";
    }

    function neutralMass(measured, charge, digits) {
        var z = toNumber(charge);
        var value = toNumber(measured) * Math.abs(z) - z * PROTON_DA;
        return isFinite(value) && z !== 0 ? value.toFixed(digits === undefined ? 4 : digits) : "";
    }

    function ppm(measured, expected, digits) {
        var value = (toNumber(measured) / toNumber(expected) - 1) * 1e6;
        if (!isFinite(value))
            return "";
        var formatted = value.toFixed(digits === undefined ? 1 : digits);
        // Nothing is neither above nor below.
        return Number(formatted) === 0 ? formatted.replace("-", "") : (value > 0 ? "+" : "") + formatted;
    }

    function twoDigits(value) {
        return (value < 10 ? "0" : "") + value;
    }

    function toDate(value) {
        var parts = /^(\d{4})-(\d{2})-(\d{2})$/.exec(text(value).trim());
        // A day without a time is that day where the reader is, not the one in Greenwich.
        if (parts)
            return new Date(Number(parts[1]), Number(parts[2]) - 1, Number(parts[3]));
        return value instanceof Date ? value : new Date(text(value));
    }

    function date(value, pattern) {
        var day = toDate(value);
        if (isNaN(day.getTime()))
            return text(value);
        var parts = { yyyy: day.getFullYear(), MMMM: MONTHS[day.getMonth()],
                      MMM: MONTHS[day.getMonth()].slice(0, 3), MM: twoDigits(day.getMonth() + 1),
                      dd: twoDigits(day.getDate()), d: day.getDate(), HH: twoDigits(day.getHours()),
                      mm: twoDigits(day.getMinutes()), ss: twoDigits(day.getSeconds()) };
        return (pattern === undefined ? "yyyy-MM-dd" : pattern)
            .replace(/yyyy|MMMM|MMM|MM|dd|d|HH|mm|ss/g, function (part) { return parts[part]; });
    }

    function list(value, separator) {
        if (Array.isArray(value))
            return value.slice();
        return text(value).split(separator === undefined ? ";" : separator)
            .map(function (item) { return item.trim(); })
            .filter(function (item) { return item !== ""; });
    }

    function join(items, separator, last) {
        var all = list(items).map(text);
        var between = separator === undefined ? ", " : separator;
        if (last === undefined || all.length < 2)
            return all.join(between);
        return all.slice(0, -1).join(between) + last + all[all.length - 1];
    }

    // Numbers in texts by their size: T2 before T10.
    function compare(left, right) {
        var pieces = /(\d+)/;
        var a = text(left).split(pieces);
        var b = text(right).split(pieces);
        for (var index = 0; index < Math.min(a.length, b.length); ++index) {
            if (a[index] === b[index])
                continue;
            var difference = index % 2 === 1 ? Number(a[index]) - Number(b[index]) : 0;
            return difference !== 0 ? difference : (a[index] < b[index] ? -1 : 1);
        }
        return a.length - b.length;
    }

    function sort(items, key) {
        var valueOf = key === undefined ? function (item) { return item; } : key;
        return list(items)
            .map(function (item, place) { return { item: item, place: place }; })
            .sort(function (left, right) {
                return compare(valueOf(left.item), valueOf(right.item)) || left.place - right.place;
            })
            .map(function (entry) { return entry.item; });
    }

    function unique(items) {
        return list(items).filter(function (item, place, all) { return all.indexOf(item) === place; });
    }

    function escapeHtml(value) {
        return text(value).replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/>/g, "&gt;")
            .replace(/"/g, "&quot;").replace(/'/g, "&#39;");
    }

    function cells(tag, values, align) {
        return values.map(function (value, column) {
            var side = align === undefined ? undefined : align[column];
            return "<" + tag + (side ? " align=\"" + escapeHtml(side) + "\"" : "") + ">" +
                escapeHtml(value) + "</" + tag + ">";
        }).join("");
    }

    function table(rows, headers, align) {
        var head = headers === undefined ? "" : "<thead><tr>" + cells("th", headers, align) + "</tr></thead>";
        var body = rows.map(function (row) { return "<tr>" + cells("td", row, align) + "</tr>"; }).join("");
        return "<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\" width=\"100%\">" + head + "<tbody>" +
            body + "</tbody></table>";
    }

    function when(condition, yes, no) {
        return condition ? text(yes) : text(no);
    }

    function ifPresent(value, before, after) {
        return text(value).trim() === "" ? "" : text(before) + text(value) + text(after);
    }

    return { number: number, grouped: grouped, scientific: scientific, percent: percent, mass: mass, mz: mz,
             neutralMass: neutralMass, ppm: ppm, date: date, list: list, join: join, sort: sort,
             unique: unique, escapeHtml: escapeHtml, table: table, when: when, ifPresent: ifPresent };
})()
