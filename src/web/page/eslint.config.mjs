// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import tseslint from 'typescript-eslint';

export default tseslint.config(
    { ignores: ['node_modules/**', '*.mjs'] },
    ...tseslint.configs.strictTypeChecked,
    {
        languageOptions: { parserOptions: { projectService: true, tsconfigRootDir: import.meta.dirname } },
        rules: {
            '@typescript-eslint/restrict-template-expressions': ['error', { allowNumber: true }],
            '@typescript-eslint/no-confusing-void-expression': ['error', { ignoreArrowShorthand: true }],
            // Texts reach the page as text nodes only.
            'no-restricted-properties': ['error', { property: 'innerHTML' }, { property: 'outerHTML' },
                { property: 'insertAdjacentHTML' }, { object: 'document', property: 'write' }],
        },
    });
