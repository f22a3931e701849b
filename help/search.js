// The search of the help on the web: a field at the top of each page, and what it finds in search_index.js, the best
// first. Nothing is sent anywhere; it works from a folder on the disk as well.
(function () {
    "use strict";
    var shown = 20;

    var box = document.createElement("div");
    box.className = "search";
    box.innerHTML = '<input id="search" type="search" placeholder="Search the help" aria-label="Search the help">' +
        '<ol id="found"></ol>';
    document.body.insertBefore(box, document.body.firstChild);
    var field = document.getElementById("search");
    var list = document.getElementById("found");

    // How well a text fits a word: 3 where it is the word, 2 where a word in it begins so, 1 where it has it within.
    function fit(text, word) {
        var place = text.indexOf(word);
        if (text === word) return 3;
        if (place < 0) return 0;
        return place === 0 || text.search(new RegExp("\\b" + word.replace(/[^a-z0-9]/g, "\\$&"))) >= 0 ? 2 : 1;
    }

    function find(words) {
        var found = [];
        searchIndex.forEach(function (entry) {
            var title = entry[1].toLowerCase(), text = entry[2].toLowerCase(), value = 0;
            var all = words.every(function (word) {
                var here = 4 * fit(title, word) + fit(text, word);
                value += here;
                return here > 0;
            });
            if (all) found.push({entry: entry, value: value});
        });
        return found.sort(function (a, b) { return b.value - a.value; }).slice(0, shown);
    }

    function passage(text, word) {
        var place = Math.max(0, text.toLowerCase().indexOf(word) - 40);
        return (place > 0 ? "... " : "") + text.substr(place, 120);
    }

    function show() {
        var words = field.value.toLowerCase().split(/\s+/).filter(Boolean);
        list.textContent = "";
        if (words.length === 0) return;
        var found = find(words);
        found.forEach(function (one) {
            var item = document.createElement("li"), link = document.createElement("a");
            link.href = one.entry[0];
            link.textContent = one.entry[1];
            item.appendChild(link);
            item.appendChild(document.createTextNode(" " + passage(one.entry[2], words[0])));
            list.appendChild(item);
        });
        if (found.length === 0) list.textContent = "Nothing is found.";
    }

    field.addEventListener("input", show);
    list.addEventListener("click", function () { field.value = ""; show(); });
})();
