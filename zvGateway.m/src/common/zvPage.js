'use strict';
// The search of a page. A group, marked by "data-group", has a heading ("data-head") and rows ("data-row"). Every word
// that is searched for has to be in a row or in the heading of its group. The search stands in the page's address, as
// "#search=TEXT".
const field = document.getElementById('search');
const found = document.getElementById('found');
const nothing = document.getElementById('nothing');
const sections = [...document.querySelectorAll('main > section')];

const textOf = element => element.textContent.toLowerCase();

const groups = [...document.querySelectorAll('[data-group]')].map(element => {
  const head = textOf(element.querySelector('[data-head]'));
  const rows = [...element.querySelectorAll('[data-row]')].map(row => ({row, text: head + ' ' + textOf(row)}));
  return {element, section: element.closest('section'), head, rows};
});
const total = groups.reduce((sum, group) => sum + group.rows.length, 0);
const number = count => count.toLocaleString('en');

function show(element, isShown) {
  if (element.hidden === isShown) {
    element.hidden = !isShown;
  }
}

function search() {
  const words = field.value.toLowerCase().split(/\s+/).filter(Boolean);
  const matches = text => words.every(word => text.includes(word));
  const shownSections = new Set();
  let count = 0;
  for (const group of groups) {
    let isShown = matches(group.head);
    for (const {row, text} of group.rows) {
      const isFound = matches(text);
      show(row, isFound);
      isShown = isShown || isFound;
      count += isFound ? 1 : 0;
    }
    show(group.element, isShown);
    if (isShown) {
      shownSections.add(group.section);
    }
  }
  for (const section of sections) {
    show(section, !words.length || shownSections.has(section));
  }
  nothing.querySelector('b').textContent = field.value.trim();
  show(nothing, words.length > 0 && shownSections.size === 0);
  found.value = (words.length ? number(count) + ' of ' : '') + number(total) + (total === 1 ? ' row' : ' rows');
}

// Browsers refuse an address that changes with every key.
let addressTimer = 0;
function keepInAddress() {
  clearTimeout(addressTimer);
  addressTimer = setTimeout(() => {
    const text = field.value.trim();
    history.replaceState(null, '', text ? '#' + new URLSearchParams({search: text}) : '#');
  }, 300);
}

function clear() {
  field.value = '';
  search();
}

// The address names a search, or a group, which is shown even if a search has hidden it.
function followAddress() {
  const text = new URLSearchParams(location.hash.slice(1)).get('search');
  if (text !== null) {
    field.value = text;
    search();
    return;
  }
  const target = document.querySelector(':target');
  if (target && target.closest('[hidden]')) {
    clear();
    target.scrollIntoView();
    // What has come back takes its real height only now.
    requestAnimationFrame(() => target.scrollIntoView());
  }
}

function followKey(event) {
  const isElsewhere = event.target.closest('input, textarea, select') === null;
  if (event.key === '/' && isElsewhere && !event.ctrlKey && !event.metaKey && !event.altKey) {
    event.preventDefault();
    field.focus();
    field.select();
  } else if (event.key === 'Escape' && field.value) {
    event.preventDefault();
    clear();
    keepInAddress();
  }
}

field.addEventListener('input', () => {
  search();
  keepInAddress();
});
addEventListener('keydown', followKey);
addEventListener('hashchange', followAddress);
search();
followAddress();
