'use strict';
// What an object's page shows on demand: the tree of its rule, both directions, and a form that evaluates the rule for
// values typed in. A rule is a list of its parts, parents before their children, which come in the order of evaluation:
// ["AND", 2] has two children, ["<", "{rev", "'2"] compares an attribute with a constant.

// Values as the library has them: {type, value}; a date also has its six numbers.
const values = (() => {
  const space = '[\\t-\\r \\u1680\\u2000-\\u2006\\u2008-\\u200a\\u2028\\u2029\\u205f\\u3000]*';
  const number = new RegExp('^' + space + '([+-]?[0-9]+)');
  const decimal = new RegExp('^' + space + '([+-]?)(?:0x([0-9a-f]*)(?:\\.([0-9a-f]*))?(?:p([+-]?[0-9]+))?|' +
      '((?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:e[+-]?[0-9]+)?)|(inf)|(nan))', 'i');
  const clamp = big => Number(big > 2147483647n ? 2147483647n : big < -2147483648n ? -2147483648n : big);
  const toInteger = text => {
    const found = number.exec(text);
    return found ? clamp(BigInt(found[1].replace('+', ''))) : 0;
  };

  // A number at the text's beginning, in single precision; digits to the base 16 may have an exponent to the base 2.
  function toFloat(text) {
    const [, sign, whole, fraction = '', exponent = '0', plain, infinite, none] = decimal.exec(text) || [];
    const digits = whole === undefined ? '' : whole + fraction;
    const size = plain ? parseFloat(plain) : infinite ? Infinity : none ? NaN
        : digits ? Number('0x' + digits) * 2 ** (Number(exponent) - 4 * fraction.length) : 0;
    return Math.fround(sign === '-' ? -size : size);
  }

  // One of the numbers of a date, as the library cuts them out, and where the next one begins.
  function extract(text, begin) {
    let at = begin;
    while (at < text.length && at - begin < 5 && !':/-'.includes(text[at++]));
    const isEnd = at === text.length;
    const field = toInteger(text.slice(begin, isEnd ? at : at - 1));
    return [field << 16 >> 16, text[at - 1] === ':' ? at + 1 : at];
  }

  // DD/MM/YYYY::hh-mm-ss, of which the end may be missing.
  function toDate(text) {
    const fields = [0, 0, 0, 0, 0, 0];
    for (let i = 0, at = 0; i < 6 && at < text.length; ++i) {
      [fields[i], at] = extract(text, at);
    }
    const [day, month, year, hour, minute, second] = fields;
    const date = new Date(2000, 0, 1);
    date.setFullYear(year, month - 1, day);
    date.setHours(hour, minute, second);
    const seconds = Math.floor(date.getTime() / 1000);
    return {type: 'Date', value: seconds >= 0 && seconds <= 32535215999 ? seconds : -1, fields};
  }

  // Six decimals, a half to the even one, exactly.
  function floatText(value) {
    if (!Number.isFinite(value)) {
      return Number.isNaN(value) ? 'nan' : value > 0 ? 'inf' : '-inf';
    }
    const scaled = BigInt(Math.abs(value) * 2 ** 149) * 1000000n;  // the smallest one is 2 to the -149
    const rest = scaled & (2n ** 149n - 1n);
    const half = 2n ** 148n;
    const digits = (scaled >> 149n) + (rest > half || (rest === half && scaled >> 149n & 1n) ? 1n : 0n);
    const text = digits.toString().padStart(7, '0');
    return (value < 0 || Object.is(value, -0) ? '-' : '') + text.slice(0, -6) + '.' + text.slice(-6);
  }

  const isWord = text => /^(true|false)$/i.test(text);
  const make = {
    Integer: text => ({type: 'Integer', value: toInteger(text)}),
    Float: text => ({type: 'Float', value: toFloat(text)}),
    Date: toDate,
    Boolean: text => ({type: 'Boolean', value: isWord(text) ? /^true$/i.test(text) : toInteger(text) !== 0}),
  };
  const of = (text, type) => (make[type] || (text => ({type: 'String', value: text})))(text);

  function textOf({type, value, fields}) {
    switch (type) {
      case 'Float': return floatText(value);
      case 'Date': return fields.slice(0, 3).join('/') + '::' + fields.slice(3).join('-');
      case 'Boolean': return value ? 'True' : 'False';
      default: return String(value);
    }
  }

  // What the value is as another type; the text of a Boolean is a number there.
  function convert(value, type) {
    if (type === 'String') return textOf(value);
    if (value.type === type) return value.value;
    if (value.type === 'String') return type === 'Boolean' ? toInteger(value.value) !== 0 : make[type](value.value).value;
    if (type === 'Integer' && value.type === 'Float') {
      return Math.abs(value.value) < 2147483648 ? Math.trunc(value.value) : -2147483648;
    }
    if (type === 'Float' && value.type === 'Integer') return Math.fround(value.value);
    throw new Error('Data cannot be converted to ' + type.toLowerCase() + ' datatype');
  }

  // Texts and dates are compared as the library does, which surprises where they are equal.
  function compare(operator, left, right) {
    const one = left.value;
    const isOrder = operator !== '=' && operator !== '!=';
    if (left.type === 'Boolean' && isOrder) {
      throw new Error('On boolean datatype only equal to and not equal to action happens');
    }
    const other = convert(right, left.type);
    const isStrict = left.type === 'String' || left.type === 'Date';
    const atMost = isStrict ? one < other : one <= other;
    const atLeast = left.type === 'String' ? one > other : one >= other;
    return {'=': one === other, '!=': one !== other, '<=': atMost, '>=': atLeast, '>': !atMost, '<': !atLeast}[operator];
  }
  return {of, textOf, compare};
})();

// What comes of the rule, and of each of its parts: undefined for one that was left out. `given` has values by name.
function evaluate(rule, given) {
  const resolve = operand => operand[0] === '{' ? given.get(operand.slice(1)) : values.of(operand.slice(1), 'String');
  const outcomes = new Array(rule.length);
  const open = [];
  for (let i = 0; i < rule.length; ++i) {
    const [operator, left, right] = rule[i];
    const parent = open[open.length - 1];
    const isLeftOut = parent !== undefined && (parent.isLeftOut || outcomes[parent.part] !== undefined);
    if (typeof left === 'number') {
      open.push({part: i, operator, left, isLeftOut});
      continue;
    }
    if (!isLeftOut) {
      const one = resolve(left);
      const other = one && resolve(right);
      outcomes[i] = other !== undefined && values.compare(operator, one, other);
    }
    // A part that is complete may complete those around it.
    for (let part = i; open.length > 0;) {
      const around = open[open.length - 1];
      --around.left;
      settle(around, outcomes, part);
      if (around.left > 0) break;
      part = open.pop().part;
    }
  }
  return {outcome: outcomes[0], outcomes};
}

// Takes what came of a child of a part.
function settle(around, outcomes, child) {
  if (around.isLeftOut || outcomes[around.part] !== undefined) {
    return;
  }
  const outcome = outcomes[child];
  if (around.operator === 'NOT') {
    outcomes[around.part] = !outcome;
  } else if (outcome === (around.operator === 'OR') || around.left === 0) {
    outcomes[around.part] = outcome;
  }
}

// The lines of a rule's tree; `tell` gives what follows a part.
function treeOf(rule, tell) {
  const deepest = 40;
  const lines = [];
  const open = [];
  rule.forEach(([operator, left, right], i) => {
    const indent = '  '.repeat(Math.min(open.length, deepest));
    const shown = operand => operand[0] === '{' ? operand + '}' : operand.replace(/\\/g, '\\\\').replace(/(?<!^)'/g, "\\'") + "'";
    const isGroup = typeof left === 'number';
    lines.push(indent + (isGroup ? operator : shown(left) + ' ' + operator + ' ' + shown(right)) + tell(i));
    if (open.length > 0) --open[open.length - 1];
    if (isGroup) open.push(left);
    while (open.length > 0 && open[open.length - 1] === 0) open.pop();
  });
  return lines.join('\n');
}

{
  const element = (name, text = '', attributes = {}) => {
    const made = document.createElement(name);
    made.textContent = text;
    for (const [key, value] of Object.entries(attributes)) made.setAttribute(key, value);
    return made;
  };
  const quoted = text => '\u201c' + text + '\u201d';
  const textOfCell = cell => !cell || cell.querySelector('.badge') ? '' : cell.textContent.replace(/\n$/, '');
  const attributesOf = article => [...article.querySelectorAll('.attributes tbody tr')].map(row => {
    const [local, remote, , type, initial] = [0, 1, 2, 3, 4].map(i => textOfCell(row.children[i]));
    return {local, remote, type, initial};
  });
  const typesOf = article => [...article.querySelectorAll('h3 b')].map(name => name.textContent);
  const ruleOf = article => JSON.parse(article.querySelector('[data-rule]').dataset.rule);

  // As in "candidate 2 of 3": those with the same type, in their order.
  function candidateOf(article, side) {
    const type = typesOf(article)[side];
    const candidates = [...document.querySelectorAll('#objects > [data-group]')].filter(other => typesOf(other)[side] === type);
    return 'candidate ' + (candidates.indexOf(article) + 1) + ' of ' + candidates.length + ' of ' + quoted(type);
  }

  function direction(article, attributes, from, to) {
    const sides = ['local', 'remote'];
    const types = typesOf(article);
    const part = element('div');
    const list = element('ul');
    part.append(element('h4', types[from] + ' \u2192 ' + types[to]),
        element('p', types[from] ? candidateOf(article, from) : 'not found by a type of this system'), list);
    for (const attribute of attributes) {
      const source = attribute[sides[from]];
      const target = attribute[sides[to]];
      const initial = attribute.initial && quoted(attribute.initial);
      const line = !target ? source + ' is not sent'
          : source ? source + ' \u2192 ' + target + (initial && ', else ' + initial)
          : target + (initial ? ' = ' + initial + ' always' : ' has no source');
      if (source || target) list.append(element('li', line, target && (source || initial) ? {} : {class: 'no'}));
    }
    return part;
  }

  function showDirections(tool, article) {
    const attributes = attributesOf(article);
    const both = element('div', '', {class: 'directions'});
    both.append(direction(article, attributes, 0, 1), direction(article, attributes, 1, 0));
    tool.append(both);
  }

  // The rule's attributes by name, in the order of the rule, with the types that the object gives them.
  function variablesOf(rule, attributes) {
    const names = rule.flatMap(part => part.slice(1)).filter(operand => typeof operand === 'string' && operand[0] === '{');
    return [...new Set(names.reverse())].map(operand => {
      const name = operand.slice(1);
      const attribute = attributes.find(other => other.local === name || other.remote === name);
      return {name, type: attribute && attribute.type !== 'unknown' ? attribute.type : 'String'};
    });
  }

  function showForm(tool, article) {
    const rule = ruleOf(article);
    const form = element('div', '', {class: 'try'});
    const answer = element('output');
    const tree = element('pre');
    const inputs = variablesOf(rule, attributesOf(article)).map(({name, type}) => {
      const label = element('label');
      const text = element('input', '', {type: 'text', autocomplete: 'off', spellcheck: 'false', placeholder: 'missing'});
      const given = element('input', '', {type: 'checkbox', 'aria-label': name + ' is there'});
      label.append(element('span', name), element('span', type, {class: 'soft'}), text);
      const row = element('div');
      row.append(given, label);
      form.append(row);
      text.addEventListener('input', () => {
        given.checked = true;
        answerNow();
      });
      given.addEventListener('change', answerNow);
      return {name, type, text, given};
    });
    function answerNow() {
      const there = inputs.filter(input => input.given.checked);
      for (const input of inputs) input.text.placeholder = input.given.checked ? 'empty' : 'missing';
      try {
        const {outcome, outcomes} = evaluate(rule, new Map(there.map(({name, type, text}) => [name, values.of(text.value, type)])));
        answer.value = String(outcome);
        tree.textContent = treeOf(rule, i => ': ' + (outcomes[i] === undefined ? 'left out' : outcomes[i]));
      } catch (error) {
        answer.value = error.message;
        tree.textContent = treeOf(rule, () => '');
      }
    }
    tool.append(form, answer, tree);
    answerNow();
  }

  document.addEventListener('toggle', ({target}) => {
    if (target.open && target.matches('.tools') && target.children.length === 1) {
      const article = target.closest('[data-group]');
      if (target.dataset.rule) showForm(target, article);
      showDirections(target, article);
    }
  }, true);
}
