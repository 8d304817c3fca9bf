// Checks what ozm-audit writes against golang.org/x/mod/sumdb, which knows nothing of it: signed notes, roots,
// inclusion and consistency proofs.
//
//	crosscheck WHOLE CONSISTENCY PART...
//
// WHOLE and PART are inspection copies of a whole trail and of parts; each file of CONSISTENCY, named after a number
// of entries, holds the proof that the trail of WHOLE goes on from so many.
package main

import (
	"bufio"
	"encoding/json"
	"fmt"
	"log"
	"os"
	"path/filepath"
	"strconv"
	"strings"

	"golang.org/x/mod/sumdb/note"
	"golang.org/x/mod/sumdb/tlog"
)

type entry struct {
	Number int64
	Bytes  []byte
}

func must(err error) {
	if err != nil {
		log.Fatal(err)
	}
}

func read(parts ...string) string {
	bytes, err := os.ReadFile(filepath.Join(parts...))
	must(err)
	return string(bytes)
}

func entries(folder string) (list []entry) {
	lines := bufio.NewScanner(strings.NewReader(read(folder, "entries.ndjson")))
	lines.Buffer(nil, 1<<26)
	for lines.Scan() {
		var e entry
		must(json.Unmarshal(lines.Bytes(), &e))
		list = append(list, e)
	}
	return list
}

// checkpoint opens a signed note and returns what it says.
func checkpoint(folder, text string) tlog.Tree {
	verifier, err := note.NewVerifier(strings.TrimSpace(read(folder, "key.pub")))
	must(err)
	opened, err := note.Open([]byte(text), note.VerifierList(verifier))
	must(err)
	lines := strings.Split(opened.Text, "\n")
	size, err := strconv.ParseInt(lines[1], 10, 64)
	must(err)
	root, err := tlog.ParseHash(lines[2])
	must(err)
	return tlog.Tree{N: size, Hash: root}
}

func hashes(lines []string) (list []tlog.Hash) {
	for _, line := range lines {
		hash, err := tlog.ParseHash(line)
		must(err)
		list = append(list, hash)
	}
	return list
}

func main() {
	whole, parts := os.Args[1], os.Args[3:]
	var stored []tlog.Hash
	reader := tlog.HashReaderFunc(func(indexes []int64) (found []tlog.Hash, err error) {
		for _, i := range indexes {
			found = append(found, stored[i])
		}
		return found, nil
	})
	all := entries(whole)
	for i, e := range all {
		added, err := tlog.StoredHashes(int64(i), e.Bytes, reader)
		must(err)
		stored = append(stored, added...)
	}
	notes, err := filepath.Glob(filepath.Join(whole, "checkpoints", "*"))
	must(err)
	var newest tlog.Tree
	for _, file := range notes {
		tree := checkpoint(whole, read(file))
		root, err := tlog.TreeHash(tree.N, reader)
		must(err)
		if root != tree.Hash {
			log.Fatalf("%s: another root", file)
		}
		if tree.N > newest.N {
			newest = tree
		}
	}
	proofs := 0
	for _, part := range parts {
		for _, e := range entries(part) {
			text := read(part, "proofs", fmt.Sprintf("%012d.tlog-proof", e.Number))
			head, signed, _ := strings.Cut(text, "\n\n")
			lines := strings.Split(head, "\n")
			if lines[1] != fmt.Sprintf("index %d", e.Number-1) {
				log.Fatalf("entry %d: %s", e.Number, lines[1])
			}
			tree := checkpoint(part, signed)
			must(tlog.CheckRecord(hashes(lines[2:]), tree.N, tree.Hash, e.Number-1, tlog.RecordHash(e.Bytes)))
			proofs++
		}
	}
	growths, err := filepath.Glob(filepath.Join(os.Args[2], "*"))
	must(err)
	for _, file := range growths {
		older, err := strconv.ParseInt(filepath.Base(file), 10, 64)
		must(err)
		olderRoot, err := tlog.TreeHash(older, reader)
		must(err)
		must(tlog.CheckTree(hashes(strings.Fields(read(file))), newest.N, newest.Hash, older, olderRoot))
	}
	if len(notes) == 0 || proofs == 0 || len(growths) == 0 {
		log.Fatal("nothing was checked")
	}
	fmt.Printf("%d entries, %d notes, %d inclusion proofs, %d consistency proofs: agreed\n", len(all), len(notes), proofs, len(growths))
}
