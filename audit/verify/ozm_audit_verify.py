#!/usr/bin/env python3
"""Checks an audit trail, or an inspection copy of one, with nothing but Python's standard library.

    ozm_audit_verify.py trail.sqlite --checkpoints FOLDER

Prints what is damaged and exits with 1, or says that the trail is whole and exits with 0. Signatures are
checked by openssl: see the README of the copy. docs/audit-store.md says what the bytes mean.
"""
import argparse, base64, contextlib, datetime, hashlib, json, pathlib, sqlite3, sys

def digest(prefix, data):
    return hashlib.sha256(bytes([prefix]) + data).digest()

class Tree:  # the right edge of an RFC 6962 tree
    def __init__(self, size=0, edge=()):
        self.size, self.edge = size, list(edge)

    def append(self, leaf):  # returns the full subtrees that are kept, as (level, position, hash)
        level, kept = 0, []
        while self.size >> level & 1:
            leaf, level = digest(1, self.edge.pop() + leaf), level + 1
            if level % 8 == 0:
                kept.append((level, self.size >> level, leaf))
        self.edge.append(leaf)
        self.size += 1
        return kept

    def root(self):
        root = self.edge[-1] if self.edge else hashlib.sha256(b"").digest()
        for left in reversed(self.edge[:-1]):
            root = digest(1, left + root)
        return root

def read_checkpoint(note):
    """(origin, size, root), or None."""
    try:
        lines = note.decode().split("\n")
        root = base64.b64decode(lines[2], validate=True)
        good = "" in lines[3:-1] and str(int(lines[1])) == lines[1] and len(root) == 32
        return (lines[0], int(lines[1]), root) if good and lines[0] else None
    except (ValueError, IndexError):
        return None

def read_entry(data):
    """The members of an entry of form 1, or None."""
    try:
        entry = json.loads(data)
        return entry if isinstance(entry, dict) and entry.get("form") == 1 else None
    except ValueError:
        return None

def columns_of(entry):
    """What stands beside an entry in the index."""
    subject = entry.get("subject", {})
    time = datetime.datetime.fromisoformat(entry["time"][:-1]) - datetime.datetime(1970, 1, 1)
    return (time // datetime.timedelta(milliseconds=1), entry.get("kind", ""),
            entry.get("user", {}).get("id", ""), entry.get("outcome", {}).get("code", 0), entry.get("parent", 0),
            subject.get("type", "") + "\n" + subject.get("key", "") if subject else "",
            "\n".join(entry.get("attributes", [])))

class Check:
    def __init__(self, database, outside):
        self.database = database
        # Findings are (damage, first, last, root of the checkpoint that shows it).
        self.findings, self.disposed, self.disposals, self.recorded = [], [], [], []
        self.tree, self.byte_tree, self.known, self.anchored, self.next, self.head_fits = Tree(), None, True, 0, 1, None
        self.last_damaged = 0
        (self.trail, self.size, self.frontier, self.indexed), = database.execute(
            "SELECT CAST(trail AS BLOB), size, frontier, indexed FROM head")
        self.trail = self.trail.decode(errors="replace")
        self.last_row, = self.one("SELECT coalesce(max(number), 0) FROM entry")
        self.end = max(self.last_row, self.size)
        kept = [read_checkpoint(n) or ("", s, b"") for s, n in database.execute("SELECT size, note FROM checkpoint")]
        self.anchors = []  # [size, root, outside, matches]
        for checkpoint, is_outside in [(c, True) for c in outside] + [(c, False) for c in kept]:
            origin, size, root = checkpoint
            if origin == self.trail:
                self.anchors.append([size, root, is_outside, None])
            else:
                self.find("not the trail" if is_outside else "index differs", size, size, root)
        self.anchors.sort(key=lambda anchor: anchor[0])
        self.at_size()
        rows = self.database.execute(
            "SELECT e.number, e.hash, e.bytes, i.time_ms, CAST(i.kind AS BLOB), CAST(i.user AS BLOB), i.outcome,"
            " i.parent, CAST(i.subject AS BLOB), CAST(i.attributes AS BLOB) FROM entry e LEFT JOIN entry_index i"
            " ON i.number = e.number WHERE e.number BETWEEN 1 AND ? ORDER BY e.number", (self.end,))
        for number, stored, data, *columns in rows:
            self.row(number, stored, data, columns)
        self.judge()

    def one(self, sql, *values):
        return self.database.execute(sql, values).fetchone()

    def find(self, damage, first, last, root=b""):
        self.findings.append((damage, first, last, root))

    def row(self, number, stored, data, columns):
        if number > self.next:
            self.find("missing", self.next, number - 1)
            self.known = False
        self.next = number + 1
        tables = ("entry",) if columns[0] is None else ("entry", "entry_index")
        if not all(self.one(f"SELECT 1 FROM {table} WHERE number = ?", number) for table in tables):
            self.find("index differs", number, number)
        computed = stored
        if not data:
            self.disposed.append(number)
        else:
            entry, computed = read_entry(data), digest(0, data)
            own = entry is not None and entry.get("trail") == self.trail
            if computed == stored and own and entry.get("number") == number:
                self.beside(number, entry, columns)
            else:
                moved = own and entry.get("number") != number
                if moved and computed != stored:
                    moved = (computed,) == self.one("SELECT hash FROM entry WHERE number = ?", entry.get("number"))
                self.find("reordered" if moved else "changed", number, number)
                self.last_damaged = number
        if self.known:
            if self.byte_tree is None and computed != stored:
                self.byte_tree = Tree(self.tree.size, self.tree.edge)
            if self.byte_tree is not None:
                self.byte_tree.append(computed)
            for level, position, full in self.tree.append(stored):
                kept = self.one("SELECT hash FROM subtree WHERE level = ? AND position = ?", level, position)
                if kept != (full,) and self.last_damaged <= position << level:
                    self.find("index differs", (position << level) + 1, (position + 1) << level)
        self.at_size()

    def beside(self, number, entry, columns):
        there = tuple(c.decode(errors="replace") if isinstance(c, bytes) else c for c in columns)
        if number <= self.indexed if there[0] is None else there != columns_of(entry):
            self.find("index differs", number, number)
        record = entry.get("record")
        if entry["kind"] in ("disposal", "redaction"):
            self.disposals.append((record["first"], record["last"]))
        elif entry["kind"] == "re-anchor":
            for known in record["findings"]:
                root = base64.b64decode(known.get("root", ""))
                self.recorded.append((known["first"], known["last"], root))
            raw = base64.b64decode(record["frontier"])
            edge = [raw[i:i + 32] for i in range(0, len(raw), 32)]
            if not self.known or edge != self.tree.edge:
                self.tree, self.byte_tree, self.known = Tree(number - 1, edge), None, True

    def at_size(self):
        size = self.next - 1
        for anchor in self.anchors:
            if self.known and anchor[0] == size:
                anchor[3] = anchor[1] in [tree.root() for tree in (self.tree, self.byte_tree) if tree]
        if self.known and size == self.size:
            self.head_fits = b"".join(self.tree.edge) == self.frontier

    def judge(self):
        if self.last_row > self.size:
            self.find("index differs", self.size + 1, self.last_row)
        if self.next <= self.end:
            self.find("cut off", self.next, self.end)
        good = 0
        for size, root, outside, matches in self.anchors:
            if size >= self.next:
                if outside or size > self.end:
                    self.find("cut off", self.next, size, root)
            elif matches:
                good = size
                self.anchored = size if outside else self.anchored
            elif matches is not None and self.last_damaged <= good:
                self.find("rebuilt", good + 1, size, root)
        if self.head_fits is False and self.last_damaged <= self.anchored:
            wrong = self.anchored == self.size
            self.find("index differs" if wrong else "rebuilt", self.size if wrong else self.anchored + 1, self.size)
        for number in (n for n in self.disposed if not any(a <= n <= b for a, b in self.disposals)):
            self.find("missing", number, number)
        self.findings.sort(key=lambda finding: finding[1])

    def unrecorded(self):
        return [f for f in self.findings if not any(k[2] == f[3] if f[3] else k == f[1:] for k in self.recorded)]

def verify(path, outside):
    """The Check of the trail at a path, against the notes of checkpoints from outside."""
    with contextlib.closing(sqlite3.connect(pathlib.Path(path).resolve().as_uri() + "?mode=ro", uri=True)) as trail:
        return Check(trail, [c for c in map(read_checkpoint, outside) if c])

def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("trail")
    parser.add_argument("--checkpoints", metavar="FOLDER", help="checkpoints from outside the trail")
    options = parser.parse_args()
    files = pathlib.Path(options.checkpoints).iterdir() if options.checkpoints else []
    check = verify(options.trail, [file.read_bytes() for file in files if file.is_file()])
    damages = check.unrecorded()
    print(f"{check.trail}: {check.end} entries, root {base64.b64encode(check.tree.root()).decode()}")
    print(f"vouched for by checkpoints from outside: {check.anchored}")
    for damage, first, last, _ in damages:
        print(f"{damage}: {first} to {last}")
    print("THE TRAIL IS DAMAGED." if damages else "The trail is whole.")
    sys.exit(bool(damages))

if __name__ == "__main__":
    main()
