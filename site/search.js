// Finds sections of the help. The page is its own store: what it shows is what is searched, in
// the browser, and nothing is sent anywhere. Without script the page stays as it is.
'use strict';

(() => {
  const form = document.getElementById('search');
  const query = document.getElementById('query');
  const found = document.getElementById('found');
  const results = document.getElementById('results');
  const shown = 8;
  let sections, index;

  // A section is a heading with an address and what stands under it, up to the next heading.
  function read() {
    sections = new Map();
    let section = null;
    for (const node of document.querySelector('.text').children)
      walk(node);
    function walk(node) {
      const heading = /^H[2-6]$/.test(node.tagName) ? node : node.querySelector('h2, h3, h4');
      if (heading === node) {
        section = {id: node.id, title: node.textContent.trim(), text: ''};
        if (node.id)
          sections.set(node.id, section);
      } else if (heading) {
        for (const child of node.children)
          walk(child);
      } else if (section) {
        section.text += node.textContent.replace(/\s+/g, ' ').trim() + ' ';
      }
    }
    index = lunr(function () {
      // Words as they are written, so that what is found can be marked while one still types.
      this.pipeline.remove(lunr.stemmer);
      this.ref('id');
      this.field('title', {boost: 8});
      this.field('text');
      this.metadataWhitelist = ['position'];
      for (const one of sections.values())
        if (one.id !== 'index')
          this.add(one);
    });
  }

  // The sections in which most words of the question are found, the best first: whole words
  // before words that begin so, these before other forms, and those with one letter mistyped last.
  function ask(text) {
    const answers = new Map();
    for (const token of lunr.tokenizer(text)) {
      const word = token.toString().replace(/^\W+|\W+$/g, '');
      if (!word || !lunr.stopWordFilter(word))
        continue;
      const stem = lunr.stemmer(new lunr.Token(word)).toString();
      const matches = index.query((asked) => {
        const as = (form, options) => asked.term(form, {usePipeline: false, ...options});
        as(word, {boost: 20});
        if (word.length > 1)
          as(word, {boost: 8, wildcard: lunr.Query.wildcard.TRAILING});
        if (stem.length > 2)
          as(stem, {boost: 4, wildcard: lunr.Query.wildcard.TRAILING});
        if (word.length > 4)
          as(word, {boost: 1, editDistance: 1});
      });
      for (const match of matches) {
        const answer = answers.get(match.ref) || {id: match.ref, words: 0, score: 0, places: []};
        answers.set(match.ref, answer);
        answer.words += 1;
        answer.score += match.score;
        for (const fields of Object.values(match.matchData.metadata))
          answer.places.push(...(fields.text ? fields.text.position : []));
      }
    }
    return [...answers.values()].sort((one, other) =>
      other.words - one.words || other.score - one.score);
  }

  // A piece of the section around the first place that was found, with the places marked.
  function excerpt(section, places) {
    places.sort((one, other) => one[0] - other[0]);
    const first = places.length ? places[0][0] : 0;
    const start = first < 60 ? 0 : section.text.lastIndexOf(' ', first - 40) + 1;
    const end = section.text.length < start + 170 ? section.text.length
      : section.text.lastIndexOf(' ', start + 170);
    const line = document.createElement('p');
    let at = start;
    for (const [place, length] of places) {
      if (place < at || place + length > end)
        continue;
      line.append(section.text.slice(at, place));
      line.appendChild(document.createElement('mark')).textContent =
        section.text.slice(place, place + length);
      at = place + length;
    }
    line.prepend(start ? '… ' : '');
    line.append(section.text.slice(at, end), end < section.text.length ? ' …' : '');
    return line;
  }

  function show() {
    const text = query.value.trim();
    results.replaceChildren();
    found.textContent = '';
    if (!text)
      return;
    if (!index)
      read();
    const matches = ask(text);
    found.textContent = matches.length === 0 ? 'Nothing found. Try another word.'
      : matches.length === 1 ? 'One section'
        : matches.length <= shown ? matches.length + ' sections'
          : 'The best ' + shown + ' of ' + matches.length + ' sections';
    for (const match of matches.slice(0, shown)) {
      const section = sections.get(match.id);
      const item = results.appendChild(document.createElement('li'));
      const link = item.appendChild(document.createElement('a'));
      link.href = '#' + section.id;
      link.textContent = section.title;
      item.append(excerpt(section, match.places));
    }
  }

  query.addEventListener('input', show);
  form.addEventListener('submit', (event) => {
    event.preventDefault();
    const best = results.querySelector('a');
    if (best)
      best.click();
  });
  form.hidden = false;
})();
