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

    // Texts that are not numbers, such as "n. d." or a range, come out of the formatting as they are. So does
    // "0x10", which nobody means as 16.
    function toNumber(value) {
        if (typeof value === "number")
            return value;
        var trimmed = text(value).trim();
        return /^[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?$/.test(trimmed) ? Number(trimmed) : NaN;
    }

    function withUnit(formatted, unit) {
        return text(unit) === "" ? formatted : formatted + " " + unit;
    }

    // Nothing has no sign.
    function withoutSignOfZero(formatted) {
        return /^-[0.]+(e|$)/.test(formatted) ? formatted.slice(1) : formatted;
    }

    function fixed(value, digits) {
        return withoutSignOfZero(digits === undefined ? String(value) : value.toFixed(digits));
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
        // The engine writes numbers from 1e21 on with an exponent.
        if (!/^-?\d+$/.test(parts[0]))
            return text(value);
        for (var at = parts[0].length - 3; at > (parts[0][0] === "-" ? 1 : 0); at -= 3)
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
        return isFinite(value) ? fixed(value, digits === undefined ? 4 : digits) : "";
    }

    function neutralMass(measured, charge, digits) {
        var z = toNumber(charge);
        var value = toNumber(measured) * Math.abs(z) - z * PROTON_DA;
        return isFinite(value) && z !== 0 ? fixed(value, digits === undefined ? 4 : digits) : "";
    }

    function ppm(measured, expected, digits) {
        var value = (toNumber(measured) / toNumber(expected) - 1) * 1e6;
        if (!isFinite(value))
            return "";
        var formatted = fixed(value, digits === undefined ? 1 : digits);
        return Number(formatted) !== 0 && value > 0 ? "+" + formatted : formatted;
    }

    function twoDigits(value) {
        return (value < 10 ? "0" : "") + value;
    }

    function daysIn(year, month) {
        var leap = (year % 4 === 0 && year % 100 !== 0) || year % 400 === 0;
        return month === 2 ? (leap ? 29 : 28) : [4, 6, 9, 11].indexOf(month) >= 0 ? 30 : 31;
    }

    function partsOf(moment) {
        return { year: moment.getFullYear(), month: moment.getMonth() + 1, day: moment.getDate(),
                 hour: moment.getHours(), minute: moment.getMinutes(), second: moment.getSeconds() };
    }

    // A day without a time is read and written as it stands: there are days without a midnight, where summer
    // time begins then, and a Date would be of the day before.
    function dateParts(value) {
        if (value instanceof Date)
            return isNaN(value.getTime()) ? null : partsOf(value);
        var found = /^(\d{4})-(\d\d)-(\d\d)(?:[T ](\d\d):(\d\d)(?::(\d\d)(?:[.,]\d+)?)?\s*(Z|[+-]\d\d:?\d\d)?)?$/
            .exec(text(value).trim());
        if (!found)
            return null;
        var at = { year: Number(found[1]), month: Number(found[2]), day: Number(found[3]),
                   hour: Number(found[4] || 0), minute: Number(found[5] || 0), second: Number(found[6] || 0) };
        if (at.month < 1 || at.month > 12 || at.day < 1 || at.day > daysIn(at.year, at.month) ||
            at.hour > 23 || at.minute > 59 || at.second > 59)
            return null;
        // Zones are at most 14 hours from that of Greenwich.
        if (found[7] && found[7] !== "Z" && (Number(found[7].slice(1, 3)) > 14 || Number(found[7].slice(-2)) > 59))
            return null;
        return found[7] ? partsOf(momentOf(at, found[7])) : at;
    }

    function momentOf(at, zone) {
        var ahead = zone === "Z" ? 0 : Number(zone.slice(1, 3)) * 60 + Number(zone.slice(-2));
        // Date.UTC takes the years up to 99 for those of the last century.
        var moment = new Date(Date.UTC(2000, at.month - 1, 1, at.hour, at.minute, at.second));
        moment.setUTCFullYear(at.year, at.month - 1, at.day);
        moment.setTime(moment.getTime() - (zone[0] === "-" ? -ahead : ahead) * 60000);
        return moment;
    }

    function date(value, pattern) {
        var at = dateParts(value);
        if (at === null)
            return text(value);
        var parts = { yyyy: ("000" + at.year).slice(-Math.max(4, String(at.year).length)),
                      MMMM: MONTHS[at.month - 1], MMM: MONTHS[at.month - 1].slice(0, 3),
                      MM: twoDigits(at.month), dd: twoDigits(at.day), d: at.day, HH: twoDigits(at.hour),
                      mm: twoDigits(at.minute), ss: twoDigits(at.second) };
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

    // Digits can be more than a number holds.
    function compareDigits(a, b) {
        var left = a.replace(/^0+/, "");
        var right = b.replace(/^0+/, "");
        return left.length - right.length || (left < right ? -1 : left > right ? 1 : 0);
    }

    // Numbers in texts by their size: T2 before T10.
    function compareTexts(left, right) {
        var pieces = /(\d+)/;
        var a = left.split(pieces);
        var b = right.split(pieces);
        for (var index = 0; index < Math.min(a.length, b.length); ++index) {
            if (a[index] === b[index])
                continue;
            var difference = index % 2 === 1 ? compareDigits(a[index], b[index]) : 0;
            return difference !== 0 ? difference : (a[index] < b[index] ? -1 : 1);
        }
        return a.length - b.length;
    }

    function compare(left, right) {
        var a = left instanceof Date ? left.getTime() : toNumber(left);
        var b = right instanceof Date ? right.getTime() : toNumber(right);
        var numbers = !isNaN(a) && !isNaN(b);
        // Numbers stand before texts.
        return numbers ? (a < b ? -1 : a > b ? 1 : 0)
            : !isNaN(a) ? -1 : !isNaN(b) ? 1 : compareTexts(text(left), text(right));
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
        return Array.from(new Set(list(items)));
    }

    // Brackets, too: a code in a value would be filled like those of the template.
    function escapeHtml(value) {
        return text(value).replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/>/g, "&gt;")
            .replace(/"/g, "&quot;").replace(/'/g, "&#39;")
            .replace(/\[/g, "&#91;").replace(/\]/g, "&#93;");
    }

    function cells(tag, values, align) {
        return list(values).map(function (value, column) {
            var side = align === undefined ? undefined : align[column];
            return "<" + tag + (side ? " align=\"" + escapeHtml(side) + "\"" : "") + ">" +
                escapeHtml(value) + "</" + tag + ">";
        }).join("");
    }

    function table(rows, headers, align) {
        var head = headers === undefined ? "" : "<thead><tr>" + cells("th", headers, align) + "</tr></thead>";
        var body = list(rows).map(function (row) { return "<tr>" + cells("td", row, align) + "</tr>"; }).join("");
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
